# Printing without a printer and without a scheduler; sourced by scripts that have built the
# release and work in the folder above this one.
# shellcheck shell=bash

intake=build/intake/documenttokestotspl
picture_program=build/intake/picture/picturetokestolabel
content_program=build/intake/content/rastertokestocontent
sheet_program=build/intake/sheet/pdftokestolabels
filter_program=build/filter/rastertokestotspl
previewer=build/preview/tsplpreview

# Not every user has the folder of cupsfilter in the path.
PATH=$PATH:/usr/sbin:/sbin

fail() {
    echo "${0##*/}: $*" >&2
    exit 1
}

# The last words of a converter or a filter, without its traces.
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

# The programs of the queue: CUPS's filters and the ones that were built here. Beside them are the kinds
# of documents that the scheduler knows with this driver, without what an installed one says of them.
programs=build/cups
link_programs() {
    local own filter
    mkdir -p "$programs/data/mime"
    ln -sf "$(cups-config --datadir)"/mime/* "$programs/data/mime/"
    rm -f "$programs/data/mime"/kesto-tspl.*
    ln -s "$PWD/packaging/kesto-tspl.types" "$programs/data/mime/"
    mkdir -p "$programs/filter"
    for filter in "$(cups-config --serverbin)"/filter/*; do
        ln -sf "$filter" "$programs/filter/"
    done
    for own in "$intake" "$picture_program" "$content_program" "$sheet_program" "$filter_program"; do
        ln -sf "$PWD/$own" "$programs/filter/"
    done
}

# printable DOCUMENT NAME PPD OPTION...: the document itself, or NAME.pdf where it first has to be
# made a PDF document, as the scheduler does with text and PostScript
printable() {
    local document=$1 name=$2 ppd=$3 converters option
    shift 3
    local cups_options=(-p "$ppd")
    for option in "$@"; do
        cups_options+=(-o "$option")
    done
    # Nothing for a picture that CUPS does not know, or for no kind of document.
    converters=$(CUPS_DATADIR=$PWD/$programs/data cupsfilter --list-filters -m application/pdf \
        "$document" 2>/dev/null) || true
    if ! grep -q -e texttopdf -e gstopdf <<<"$converters"; then
        echo "$document"
        return
    fi
    cupsfilter "${cups_options[@]}" -m application/pdf "$document" >"$name.pdf" \
        2>"$name.cupsfilter.log" ||
        fail_with_log "the document cannot be converted" "$name.cupsfilter.log"
    echo "$name.pdf"
}

# print_document PPD DOCUMENT NAME OPTION...: NAME.tspl, pictures of its labels, and a list of what
# is sent
print_document() {
    local ppd=$1 document=$2 name=$3 job_options='' option source copies=1 sound=yes
    shift 3
    # Should this run fail, no results of an earlier one are mistaken for its own.
    rm -f "$name.tspl" "$name.pdf" "$name"-[0-9]*.png

    link_programs
    source=$(printable "$document" "$name" "$ppd" "$@") || exit
    for option in "$@"; do
        [[ $option != copies=* ]] || copies=${option#copies=}
        job_options+="${job_options:+ }$(escaped "$option")"
    done
    env -u CUPS_SERVER CUPS_SERVERBIN="$PWD/$programs" PPD="$ppd" \
        "$intake" 1 "$(id -un)" "$(basename "$document")" "$copies" "$job_options" \
        "$source" >"$name.tspl" 2>"$name.log" ||
        fail_with_log "the document is not printed" "$name.log"

    echo
    echo "Printed $document to $name.tspl (log: $name.log)"
    # What is complained of is told once, and drawn all the same: the pictures show it.
    "$previewer" --check "$name.tspl" || sound=
    "$previewer" --list "$name.tspl" 2>/dev/null
    echo "Pictures of the labels:"
    "$previewer" -o "$name" "$name.tspl" 2>"$name.preview.log" | sed 's/^/  /' ||
        fail_with_log "the labels cannot be drawn" "$name.preview.log"
    rm "$name.preview.log"
    [[ -n $sound ]] || fail "there is something wrong with this stream"
}
