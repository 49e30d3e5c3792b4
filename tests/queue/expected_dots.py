"""The dots that a label of a size has to get, worked out from the size alone."""
import math

# Labels are not cut more exactly than this: a page may reach over the edge by so much.
EDGE_MM = 0.15


def expected_dots(width_mm, height_mm, dpi):
    """(columns, rows): whole bytes that fit on the label, and the nearest number of rows. Where the
    label is not wider than tall the page is not either, so that nothing turns it."""
    columns = 8 * math.floor((width_mm + EDGE_MM) / 25.4 * dpi / 8 + 1e-9)
    rows = math.floor(height_mm / 25.4 * dpi + 0.5)
    return columns, max(rows, columns) if width_mm <= height_mm else rows
