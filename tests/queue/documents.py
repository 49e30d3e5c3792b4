"""Small documents to print, written here so that the tests know what is on them."""


def pdf(page_texts, width=286, height=432):
    """A PDF document with a line of text and a number of 10 point squares on each page."""
    objects = [b'<</Type/Catalog/Pages 2 0 R>>', b'', b'<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>']
    kids = []
    for text in page_texts:
        content = f'BT /F 20 Tf 20 {height - 40} Td ({text}) Tj ET 20 20 10 10 re f'.encode()
        objects.append(b'<</Length %d>>stream\n%s\nendstream' % (len(content), content))
        objects.append(f'<</Type/Page/Parent 2 0 R/MediaBox[0 0 {width} {height}]/Contents '
                       f'{len(objects)} 0 R/Resources<</Font<</F 3 0 R>>>>>>'.encode())
        kids.append(f'{len(objects)} 0 R')
    objects[1] = f'<</Type/Pages/Count {len(kids)}/Kids[{" ".join(kids)}]>>'.encode()
    out = b'%PDF-1.4\n'
    offsets = []
    for number, body in enumerate(objects, 1):
        offsets.append(len(out))
        out += b'%d 0 obj%s\nendobj\n' % (number, body)
    xref = len(out)
    out += b'xref\n0 %d\n0000000000 65535 f \n' % (len(objects) + 1)
    out += b''.join(b'%010d 00000 n \n' % offset for offset in offsets)
    return out + b'trailer<</Size %d/Root 1 0 R>>\nstartxref\n%d\n%%%%EOF\n' % (len(objects) + 1, xref)
