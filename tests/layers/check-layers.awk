# Reads the table of the layers, then the sources; see check-layers.sh.

function report(text) {
    printf "%s:%d: %s\n", FILENAME, FNR, text
    faults = 1
}

# Sets the layer whose rules the file follows and what kind of file it is.
function startFile(parts, count) {
    count = split(FILENAME, parts, "/")
    isTest = parts[1] == "tests"
    isTool = parts[1] == "bench" || parts[1] == "fuzz"
    layer = isTest ? parts[2] : parts[1]
    room = count > 2 && !isTest && !isTool ? parts[1] "/" parts[2] : ""
    # The start of the program is measured against a bare Qt Quick window.
    knowsQt = layer == "ui" || FILENAME ~ /^bench\/(start|screen|graph|pages)\//
    inComment = 0
    if (isTest && count < 3) {
        layer = "" # helpers for the tests of every layer
    } else if (!isTool && !(layer in known)) {
        report("the folder '" layer "' is no layer of layers.txt")
    } else if (room != "" && !(room in known)) {
        report("the room '" room "' is not in layers.txt")
    }
}

function checkInclude(line, name, quoted, first) {
    name = line
    sub(/^[ \t]*#[ \t]*include[ \t]*/, "", name)
    quoted = substr(name, 1, 1) == "\""
    name = substr(name, 2)
    sub(/[">].*$/, "", name)
    first = name
    sub(/\/.*$/, "", first)

    if (first ~ /^Qt?[A-Z]/ || name ~ /^q[a-z0-9]+\.h$/) {
        if (!knowsQt) {
            report("only ui/ knows Qt: " name)
        }
        return
    }
    if (!quoted && !(first in known)) {
        return
    }
    # What Qt's own compiler of meta-objects makes is included by its bare name.
    if (layer == "ui" && name ~ /^(moc_[A-Za-z0-9_]+\.cpp|[A-Za-z0-9_]+\.moc)$/) {
        return
    }
    if (name !~ /\// || name ~ /(^|\/)\.\.?(\/|$)/) {
        report("include with the folder, from the top: " name)
    } else if (first == "tests") {
        if (!isTest) {
            report("only tests include from tests/: " name)
        }
    } else if (first == "fuzz" || first == "bench") {
        if (FILENAME !~ "^" first "/") {
            report("only " first "/ includes from " first "/: " name)
        }
    } else if (!(first in known)) {
        report("the folder '" first "' is no layer of layers.txt: " name)
    } else if (isTool) {
        if (first == "ui" && !knowsQt) {
            report(layer "/ is built without Qt and must not include " name)
        }
    } else if (layer == "") {
        if (first == "ui") {
            report("helpers of all tests must not include " name)
        }
    } else if (first != layer && !((layer, first) in allowed)) {
        report(layer "/ must not include " name)
    } else if (first == layer && room != "") {
        checkRoom(name)
    }
}

# Within a layer the rooms have an order too. What stands in the folder itself sees all of its rooms.
function checkRoom(name, parts, other) {
    if (split(name, parts, "/") < 3) {
        report(room "/ must not include what stands above the rooms: " name)
        return
    }
    other = parts[1] "/" parts[2]
    if (other != room && !((room, other) in allowed)) {
        report(room "/ must not include " name)
    }
}

# The line without comments, so that prose may speak of printf.
function code(line, result, at) {
    result = ""
    while (line != "") {
        if (inComment) {
            at = index(line, "*/")
            if (at == 0) {
                return result
            }
            inComment = 0
            line = substr(line, at + 2)
        } else {
            if (!match(line, /\/\/|\/\*/)) {
                return result line
            }
            result = result substr(line, 1, RSTART - 1)
            if (substr(line, RSTART, 2) == "//") {
                return result
            }
            inComment = 1
            line = substr(line, RSTART + 2)
        }
    }
    return result
}

FILENAME == ARGV[1] {
    if ($0 !~ /^[ \t]*(#|$)/) {
        folder = $1
        sub(/:$/, "", folder)
        known[folder] = 1
        outer = folder ~ /\// ? substr(folder, 1, index(folder, "/")) : ""
        for (i = 2; i <= NF; ++i) {
            allowed[folder, outer $i] = 1
        }
    }
    next
}

FNR == 1 { startFile() }

/^[ \t]*#[ \t]*include[ \t]*["<]/ {
    if (!inComment) {
        checkInclude($0)
    }
    next
}

{
    text = code($0)
    if (!isTest && !isTool && FILENAME != "platform/text/Log.cpp" && FILENAME !~ /^ui\/main\.(cpp|h)$/ &&
        text ~ /(^|[^A-Za-z0-9_.])(v?f?printf|f?puts|f?putc|putchar|perror|(std::)?w?(cout|cerr|clog)|qDebug|qInfo|qWarning|qCritical)([^A-Za-z0-9_]|$)/) {
        report("only the log in platform/ prints")
    }
}

END { exit faults }
