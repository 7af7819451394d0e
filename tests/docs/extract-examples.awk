# Writes one C++ source, the variable output, of all examples in headers (\code ... \endcode) and
# guides (```cpp ... ```).
#
# An example with a function or an include of its own stands in a namespace; any other is the body
# of a member function of the host that Host.h declares for the file it is in. The compiler's
# messages name file and line of the example.

# A header whose class has no example, or no place among the topics, does not compile either.
function check_header() {
    if (class != "" && (!has_example || !has_group))
        examples = examples "#error \"" class ": no \\code, or no \\ingroup\"\n"
    class = ""
    has_example = has_group = 0
}

FNR == 1 {
    check_header()
    tag = FILENAME
    sub(/.*\//, "", tag)
    gsub(/[^A-Za-z0-9]/, "_", tag)
}

FILENAME ~ /\.h$/ && /^class [^;]*$/ {
    class = FILENAME
}

/\\code$/ {
    has_example = 1
}

/\\ingroup / {
    has_group = 1
}

!inside && (/^ *\/\/\/ *\\code$/ || /^```cpp$/) {
    inside = 1
    indent = $0
    sub(/(\\code|```cpp)$/, "", indent)
    stands_alone = 0
    text = "#line " FNR + 1 " \"" FILENAME "\"\n"
    next
}

inside && (/\\endcode$/ || /^```$/) {
    inside = 0
    count++
    if (!stands_alone)
        text = "struct Example : Around<" tag ">::Host {\nvoid run() {\n" text "}\n};\n"
    examples = examples "namespace example_" count " {\n" text "}\n"
    tags[tag] = 1
    next
}

inside {
    line = substr($0, length(indent) + 1)
    if (line ~ /^#include </) {
        includes = includes line "\n"
        stands_alone = 1
        line = ""
    } else if (line ~ /^#include "/) {
        line = "" # made by moc, which examples do not need to be compiled
    } else if (line ~ /^[A-Za-z][A-Za-z0-9_:<>]*[ *&]+[A-Za-z_:]+\([^;]*\)$/) {
        stands_alone = 1
    }
    text = text line "\n"
}

END {
    check_header()
    print "// Made by extract-examples.awk." > output
    print includes > output
    print "#include \"Host.h\"" > output
    for (tag in tags)
        print "struct " tag ";" > output
    print "HOSTS_OF_THEIR_OWN" > output
    print examples > output
    if (count == 0)
        print "#error \"There are no examples.\"" > output
}
