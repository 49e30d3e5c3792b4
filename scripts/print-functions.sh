# Printing without a printer and without a scheduler; sourced by scripts that have built the
# release and work in the folder above this one.
# shellcheck shell=bash

filter=build/filter/rastertokestotspl
previewer=build/preview/tsplpreview

# Not every user has the folder of cupsfilter in the path.
PATH=$PATH:/usr/sbin:/sbin

fail() {
    echo "${0##*/}: $*" >&2
    exit 1
}

# The last words of a converter or the filter, without its traces.
fail_with_log() {
    grep -v '^DEBUG' "$2" | tail -n 20 >&2 || true
    fail "$1 (the whole log is $2)"
}

# escaped OPTION: a blank, a quote or a backslash within an option would end or change it
escaped() {
    local option=${1//\\/\\\\}
    option=${option// /\\ }
    option=${option//\'/\\\'}
    echo "${option//\"/\\\"}"
}

# to_raster PPD DOCUMENT NAME OPTION...: NAME.raster, by CUPS's own converters
to_raster() {
    local ppd=$1 document=$2 name=$3 converters option source
    shift 3
    local cups_options=(-p "$ppd")
    for option in "$@"; do
        cups_options+=(-o "$option")
    done

    source=("$document")
    converters=$(cupsfilter --list-filters -p "$ppd" -m application/vnd.cups-raster "$document") ||
        fail "CUPS cannot convert this kind of document: $document"
    if grep -qx imagetoraster <<<"$converters"; then
        # On this road CUPS cuts the page down to the picture, whatever the size of the page. As
        # a PDF document the picture keeps the whole page.
        cupsfilter "${cups_options[@]}" -m application/vnd.cups-pdf "$document" \
            >"$name.picture.pdf" 2>"$name.picture.log" ||
            fail_with_log "the picture cannot be converted" "$name.picture.log"
        source=(-i application/pdf "$name.picture.pdf")
    fi
    cupsfilter "${cups_options[@]}" -m application/vnd.cups-raster "${source[@]}" \
        >"$name.raster" 2>"$name.cupsfilter.log" ||
        fail_with_log "the document cannot be converted" "$name.cupsfilter.log"
    [[ -s $name.raster ]] || fail_with_log "the document has no pages" "$name.cupsfilter.log"
}

# print_document PPD DOCUMENT NAME OPTION...: NAME.tspl, pictures of its labels, and a list of what
# is sent
print_document() {
    local ppd=$1 document=$2 name=$3 filter_options='' option
    shift 3
    # Should this run fail, no results of an earlier one are mistaken for its own.
    rm -f "$name.raster" "$name.tspl" "$name.picture.pdf" "$name"-[0-9]*.png

    to_raster "$ppd" "$document" "$name" "$@"
    for option in "$@"; do
        filter_options+="${filter_options:+ }$(escaped "$option")"
    done
    PPD=$ppd "$filter" 1 "$(id -un)" "$(basename "$document")" 1 "$filter_options" \
        "$name.raster" >"$name.tspl" 2>"$name.log" ||
        fail_with_log "the filter failed" "$name.log"

    echo
    echo "Printed $document to $name.tspl (log: $name.log)"
    "$previewer" --check "$name.tspl" || fail "no printer would take this stream"
    "$previewer" --list "$name.tspl" 2>/dev/null
    echo "Pictures of the labels:"
    "$previewer" -o "$name" "$name.tspl" | sed 's/^/  /'
}
