# Doxygen reads the guides through this filter, which makes links of the classes they name.

{
    line = ""
    while (match($0, /`Om[A-Z][A-Za-z0-9]+`/)) {
        name = substr($0, RSTART + 1, RLENGTH - 2)
        scope = name ~ /^Om(ScreenShooter|Scribbled|Graphics)/ ? "" : "ombrin::"
        line = line substr($0, 1, RSTART - 1) "\\link " scope name " " name "\\endlink"
        $0 = substr($0, RSTART + RLENGTH)
    }
    print line $0
}
