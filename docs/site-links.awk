# Prepares a page of docs/ for Doxygen, which knows no anchors of headings by itself: each heading below
# the title gets one, made of the page's name and the heading as GitHub makes it, and the links to
# headings follow. Links to files that are no page of the site become their names.
function slug(text) {
    text = tolower(text)
    gsub(/[`*]/, "", text)
    gsub(/[^a-z0-9 _-]/, "", text)
    gsub(/ /, "-", text)
    return text
}

function page(path) {
    sub(/.*\//, "", path)
    sub(/\.md$/, "", path)
    return path
}

# The links of a line, from left to right.
function relinked(line,    done, text, target, parts) {
    done = ""
    while (match(line, /\[[^\]]*\]\([^)]*\)/)) {
        done = done substr(line, 1, RSTART - 1)
        text = substr(line, RSTART, RLENGTH)
        line = substr(line, RSTART + RLENGTH)
        target = text
        sub(/^\[[^\]]*\]\(/, "", target)
        sub(/\)$/, "", target)
        sub(/\]\(.*/, "", text)
        sub(/^\[/, "", text)
        split(target, parts, "#")
        if (target ~ /^https?:/ || target ~ /\.(svg|png)$/) {
            done = done "[" text "](" target ")"
        } else if (target ~ /#/) {
            done = done "[" text "](#" (parts[1] == "" ? here : page(parts[1])) "-" parts[2] ")"
        } else if (target ~ /^(docs\/)?[A-Za-z-]+\.md$/) {
            done = done "[" text "](#page-" page(target) ")"
        } else {
            done = done text " (`" target "`)"
        }
    }
    return done line
}

FNR == 1 { here = page(FILENAME) }
/^```/ { verbatim = !verbatim }
verbatim || /^    / { print; next }
/^# / { print $0 " {#page-" here "}"; next }
/^##+ / {
    heading = $0
    sub(/^#+ /, "", heading)
    print relinked($0) " {#" here "-" slug(heading) "}"
    next
}
{ print relinked($0) }
