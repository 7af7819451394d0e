# Doxygen reads the public headers through this filter, which lets it see what a reader sees:
#
# - a comment belongs to all declarations below it, up to the next blank line;
# - the comment of a property belongs to the functions that read and write it, and a property
#   without a comment is described by these functions;
# - a constructor that only takes a parent needs no comment, and neither does a destructor, or what
#   a class overrides as Qt's documentation of its base class says: these are left out.
#
# No line is added or taken away, so that Doxygen's warnings name the right ones.

function document(text) {
    sub(/^ +/, "", declaration)
    declaration = "    /*! " text " */ " declaration
}

function hide() {
    declaration = "/*! \\cond */" declaration "/*! \\endcond */"
}

# The name that stands before the first parenthesis.
function function_name(text) {
    sub(/ *\(.*/, "", text)
    sub(/.*[^A-Za-z0-9_~]/, "", text)
    return text
}

function word_behind(keyword, text) {
    if (!match(text, keyword " [A-Za-z0-9_]+"))
        return ""
    return substr(text, RSTART + length(keyword) + 1, RLENGTH - length(keyword) - 1)
}

function finish_property(reader, writer) {
    reader = word_behind("READ", declaration)
    writer = word_behind("WRITE", declaration)
    if (documented)
        property[reader] = property[writer] = comment
    else
        document("See " reader "()" (writer == "" ? "." : " and " writer "()."))
}

function finish_declaration(name) {
    name = function_name(declaration)
    if (declaration ~ /^ *Q_PROPERTY/)
        finish_property()
    else if (documented || declaration ~ /\/\/\/</)
        ;
    else if (name ~ /^~/ || declaration ~ /^ *using [^=]*;|\) *(const )?(noexcept )?override|= delete;/)
        hide()
    else if (comment != "")
        document(comment)
    else if (name in property)
        document(property[name])
    else if (name == class && declaration ~ /\((QWidget|QObject) \*parent( = nullptr)?(,[ \n]*Qt::WindowFlags [a-z]+ = Qt::WindowFlags\(\))?\);/)
        document("Makes one that is owned by \\a parent, which may be null.")
    print declaration
    declaration = ""
    documented = 0
}

function take(line) {
    declaration = declaration == "" ? line : declaration "\n" line
    if (declaration ~ /^ *Q_PROPERTY/ ? line ~ /\)$/ : line ~ /[;{]/)
        finish_declaration()
}

declaration != "" {
    take($0)
    next
}

/^(class|struct) .*[A-Za-z0-9_]+( final)?( *:.*)?$/ {
    class = $0
    sub(/ *:.*/, "", class)
    sub(/.* /, "", class)
}

/^ *\/\/\/ *\\(name|[{}])/ {
    comment = ""
    documented = 0
    # The first comment in the group must not become a part of these lines.
    if (/\\name/)
        sub(/\/\/\//, "/*!")
    else
        sub(/\/\/\/.*/, /{/ ? "\\{ */" : "/*! \\} */")
    print
    next
}

/^ *\/\/\// {
    line = $0
    sub(/^ *\/\/\/ ?/, "", line)
    comment = documented ? comment " " (line == "" ? "\\n" : line) : line
    documented = 1
    print
    next
}

/^    [A-Za-z~]/ && !/^    (return|Q_OBJECT|Q_GADGET|Q_DISABLE|Q_DECLARE)/ {
    take($0)
    next
}

# A class made from a template is described by the template.
/^extern template/ {
    $0 = "//" $0
}

{
    if ($0 == "" || /[:{]$/)
        comment = ""
    documented = 0
    print
}
