# Prepares public headers for the API reference, and checks that every parameter is explained.
#
#   awk -v words=main-page.md -f headers.awk HEADER...
#
# The comment of a getter also stands for the setter on the next line, that of a function for an overload there, that
# of a copy constructor for the assignment there: the reference shows it with both. A header's first comment describes
# the file, and what the file declares joins the group named after its folder. Lines keep their numbers. Message
# handlers, which hosts do not call, are left out.
#
# A parameter is explained when its function's comment names it in `back quotes`, when the table of parameters in the
# main page has it, or when it is the value of a setter. A value of an enumeration needs a comment. What lacks one is
# listed on the error output; the exit code is then 1.

BEGIN {
    while ((getline line < words) > 0)
        if (line ~ /^\| `/) {
            split(line, cells, "|")
            for (n = split(cells[2], names, "`") - 1; n > 1; n -= 2)
                known[names[n]] = 1
        }
    known["int"] = known["short"] = known["long"] = 1  # the types of nameless ones
}

# What is no member of a class joins the group by itself.
function into_group(    parts, n) {
    if (comment == "" || /^ /)
        return ""
    n = split(FILENAME, parts, "/")
    return "/** @ingroup " (parts[n - 1] == "include" ? parts[n - 2] : parts[n - 1]) " */ "
}

function name_of(code) {
    return match(code, /(operator[^(]+|~?[A-Za-z_][A-Za-z0-9_]*)\(/) ? substr(code, RSTART, RLENGTH - 1) : ""
}

function stands_for_both(first, second,    property) {
    property = substr(second, 4)
    return first == second || first == "Get" property && second == "Set" property ||
           first == class_name && second == "operator="
}

function complain(line, what) {
    printf "%s:%d: %s is not explained\n", FILENAME, line, what > "/dev/stderr"
    failed = 1
}

function check_parameters(name,    list, parameters, n, i) {
    list = substr(declaration, index(declaration, name "(") + length(name) + 1)
    gsub(/<[^<>]*>/, "", list)
    gsub(/ = [^,)]*(\(\))?/, "", list)
    sub(/\).*/, "", list)
    n = split(list, parameters, /, */)
    if (n == 1 && name ~ /^Set/)
        return
    for (i = 1; i <= n; i++)
        if (match(parameters[i], /[ &*][a-z][A-Za-z0-9]*$/)) {
            parameters[i] = substr(parameters[i], RSTART + 1)
            if (!(parameters[i] in known) && !index(comment, "`" parameters[i] "`"))
                complain(started, parameters[i] " of " name)
        }
}

function forget() {
    comment = declaration = previous = previous_comment = ""
}

FNR == 1 {
    forget()
    inside_body = inside_handler = 0
    heading = 1
    file = FILENAME
    sub(/.*\//, "", file)
    printf "/** @file %s ", file
}
heading && /^\/\/ / {
    print substr($0, 4)
    next
}
heading {
    heading = 0
    print "*/ " $0
    next
}
inside_enum && /^ *[A-Za-z0-9_]+( = .*)?,/ && !/\/\/\/</ && comment == "" {
    match($0, /[A-Za-z0-9_]+/)
    complain(FNR, substr($0, RSTART, RLENGTH))
}
inside_enum && /^ *}/ {
    inside_enum = 0
}
inside_body {
    inside_body = index($0, indent "}") != 1
    print
    next
}
/^ *afx_msg / || inside_handler {
    inside_handler = !/;/
    print ""
    next
}
declaration == "" && /^ *\/\/\/ / {
    match($0, /\/\/\/ /)
    comment = comment (comment == "" ? "" : " ") substr($0, RSTART + 4)
    print
    next
}
declaration == "" && /^ *($|#|\/\/|public:|protected:|private:)/ {
    forget()
    print
    next
}
declaration == "" && /^ *template / {
    print
    next
}
declaration == "" && /^ *(class|struct|enum|union|namespace|inline namespace) / {
    if (match($0, /^(class|struct) (TESSEL_API |MARROWLOG_CLASS )?[A-Za-z0-9]+/)) {
        class_name = substr($0, RSTART, RLENGTH)
        sub(/.* /, "", class_name)
    }
    inside_enum = /^ *enum .*\{$/
    print into_group() $0
    forget()
    next
}
{
    match($0, /^ */)
    code = substr($0, RLENGTH + 1)
    if (declaration == "") {
        started = FNR
        indent = substr($0, 1, RLENGTH)
        if (comment == "" && previous_comment != "" && stands_for_both(previous, name_of(code))) {
            comment = previous_comment
            print indent "/** " comment " */ " code
        } else
            print into_group() $0
    } else
        print
    declaration = declaration (declaration == "" ? "" : " ") code
}
/[;}]( *\/\/.*)?$/ || /\{$/ || /, +\/\/\/</ || /,$/ && declaration !~ /\(/ {
    inside_body = /\{$/
    name = name_of(declaration)
    if (name != "" && comment != "" && declaration !~ / override/)
        check_parameters(name)
    code = comment
    comment = declaration = ""
    previous = name
    previous_comment = code
}

END {
    exit failed
}
