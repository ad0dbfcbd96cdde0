#!/usr/bin/env bash
# Plants one line at a time in a small tree and looks at what check-layers.sh says: a check that finds
# nothing is no proof that there is nothing to find.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

failures=0
# expect clean|fault FILE LINE
expect() {
    local verdict=clean output
    mkdir -p "$tree/$(dirname "$2")"
    printf '%s\n' "$3" >"$tree/$2"
    output=$("$here/check-layers.sh" "$tree" 2>&1) || verdict=fault
    # A fault must name its file, or a crash of the check itself would pass for one.
    if [[ $verdict == fault && $output != "$2:"* ]]; then
        verdict="failed otherwise"
    fi
    if [[ $verdict != "$1" ]]; then
        printf 'expected %s, got %s: %s: %s\n%s\n' "$1" "$verdict" "$2" "$3" "$output"
        failures=$((failures + 1))
    fi
    rm -rf "${tree:?}"/*
}

# Down and within the layer.
expect clean engine/Parser.cpp '#include "engine/lines/Token.h"'
expect clean engine/Parser.cpp '#include "platform/text/Log.h"'
expect clean engine/Parser.cpp '#include <vector>'
expect clean app/Start.cpp '#include "tools/units/UnitConverter.h"'
expect clean ui/Scene.cpp '#include "app/Start.h"'
# Upward, sideways, and upward in disguise.
expect fault engine/Parser.cpp '#include "calculator/model/Model.h"'
expect fault platform/text/Log.cpp '#include "toolkit/Rect.h"'
expect fault toolkit/Rect.h '#include "engine/lines/Token.h"'
expect fault graphing/View.cpp '#include "tools/units/UnitConverter.h"'
expect fault tools/View.cpp '#include "graphing/screen/GraphView.h"'
expect fault app/Start.cpp '#include "ui/Scene.h"'
expect fault engine/Parser.cpp '  #  include <calculator/model/Model.h>'
expect fault engine/Parser.cpp '#include "engine/../calculator/Model.h"'
expect fault engine/deep/Parser.cpp '#include "calculator/model/Model.h"'
# With the folder, and from a folder that the table knows.
expect fault engine/Parser.cpp '#include "Token.h"'
expect fault engine/Parser.cpp '#include "../platform/Log.h"'
expect fault engine/Parser.cpp '#include "helpers/Text.h"'
expect fault helpers/Text.cpp 'int x;'
# The rooms of a layer have an order of their own.
expect clean engine/tree/Parser.cpp '#include "engine/numbers/Power.h"'
expect clean engine/tree/Parser.cpp '#include "engine/tree/Node.h"'
expect clean ui/Application.cpp '#include "ui/adapters/Scene.h"'
expect fault engine/numbers/Power.cpp '#include "engine/tree/Parser.h"'
expect fault engine/tree/Parser.cpp '#include "engine/Token.h"'
expect fault engine/attic/Parser.cpp '#include "engine/numbers/Power.h"'
# Tests follow the folder they mirror.
expect clean tests/engine/tree/ParserTest.cpp '#include "engine/Parser.h"'
expect clean tests/engine/tree/ParserTest.cpp '#include "tests/engine/Lines.h"'
expect fault tests/engine/tree/ParserTest.cpp '#include "calculator/model/Model.h"'
expect fault engine/Parser.cpp '#include "tests/engine/Lines.h"'
expect clean bench/Evaluate.cpp '#include "calculator/model/Model.h"'
expect fault bench/Evaluate.cpp '#include "ui/Scene.h"'
# Qt.
expect clean ui/Scene.cpp '#include <QQuickWindow>'
expect clean ui/Scene.cpp '#include "moc_Scene.cpp"'
expect clean tests/ui/SceneTest.cpp '#include <QtTest/QTest>'
expect fault engine/Parser.cpp '#include <QString>'
expect fault app/Start.h '#include <QtCore/QObject>'
expect fault tests/app/StartTest.cpp '#include <QTest>'
expect fault toolkit/Rect.h '#include <qrect.h>'
# Printing.
expect clean platform/text/Log.cpp 'std::fputs(text, stderr);'
expect clean ui/main.cpp 'std::cout << version;'
expect clean tests/engine/tree/ParserTest.cpp 'std::cout << line;'
expect clean engine/Parser.cpp 'std::snprintf(buffer, size, format);'
expect clean engine/Parser.cpp '// as printf("%g") would'
expect fault engine/Parser.cpp 'printf("%g", x);'
expect fault engine/Parser.cpp 'std::cerr << x;'
expect fault platform/machine/Clock.cpp 'std::fprintf(stderr, "late");'
expect fault ui/Scene.cpp 'qWarning() << "late";'
expect fault engine/Parser.cpp '/* why */ std::cout << x;'

# An empty tree is a fault, too, or a wrong path would pass.
if "$here/check-layers.sh" "$tree" >/dev/null 2>&1; then
    echo "expected a fault in an empty tree"
    failures=$((failures + 1))
fi
echo "$failures unexpected verdicts"
((failures == 0))
