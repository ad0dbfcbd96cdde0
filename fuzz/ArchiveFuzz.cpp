// What a file may bring into the model: anything a property list can say.

#include "calculator/model/Model.h"
#include "calculator/model/ModelArchive.h"
#include "engine/tree/Expression.h"
#include "fuzz/FuzzTarget.h"
#include "platform/text/Log.h"

#include <cmath>
#include <cstdlib>
#include <iostream>

using namespace velmora;

namespace {

void fail(const char* broken) {
    std::cerr << broken << '\n';
    std::abort();
}

/// A text that names the keys of the archive and of its entries, which chance would hardly find.
std::string archiveText(const char* history, const char* rest) {
    return std::string("<plist version=\"1.0\"><dict><key>ModelHistoryTokenArrays</key><array>") + history +
           "</array>" + rest + "</dict></plist>";
}

} // namespace

// A model that has read a file shows every line, and what it saves reads back as the same settings.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const LogScope quiet([](std::string_view) {});
    const auto archive = readPropertyList(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!archive) {
        return 0;
    }
    Model::resetForTests();
    Model& model = Model::m();
    loadArchivedModel(model, *archive);
    for (int row = 0; row < model.history().nExpressions(); ++row) {
        static_cast<void>(model.history().expressionString(row));
        if (model.history().entryAtIndex(row)->resultText().empty() &&
            !model.history().entryAtIndex(row)->expression()->errorDescription()) {
            fail("a row of the history shows nothing");
        }
    }
    const PropertyList saved = archivedModel(model);
    const double xMin = model.xMinForGraph();
    const int digits = model.displayDigits();
    if (!std::isfinite(xMin) || digits < 2 || digits > 12 || model.history().nExpressions() > 50) {
        fail("a value out of its range was taken");
    }
    Model::resetForTests();
    loadArchivedModel(Model::m(), saved);
    if (Model::m().xMinForGraph() != xMin || Model::m().displayDigits() != digits) {
        fail("a saved model reads back as another");
    }
    return 0;
}

std::vector<std::string> seedCorpus() {
    Model::resetForTests();
    Model::m().history().addExpressionTokenArray(Token::tokenArrayWithString("sin("));
    const PropertyData whole = binaryPropertyList(archivedModel(Model::m()));
    return {
        std::string(whole.begin(), whole.end()),
        archiveText("<array><string>2</string><string>^</string><string>@k1</string></array>",
                    "<key>ConstantsArrays</key><array><array><string>@k2</string></array>"
                    "<array><string>@k1</string></array></array>"),
        archiveText("", "<key>xMinForGraphKey</key><real>1e308</real><key>displayDigitsKey</key><integer>7"
                        "</integer><key>ConstantsNameArrays</key><array><string>a</string></array>"),
        archiveText("<dict><key>TokenArrayKey</key><array/></dict>",
                    "<key>InequalityArrayKey</key><array><dict/></array>"
                    "<key>impliedFunctionsLevelCurveHeights</key><array><dict/></array>"),
    };
}

std::vector<std::string> fuzzDictionary() {
    return {"ModelEquationTokenArrays",
            "ParametricXTokenArrays",
            "PolarRTokenArrays",
            "ConstantsArrays",
            "impliedFunctionsTokenArrays",
            "InequalityArrayKey",
            "KeptResultKey",
            "TokenArrayKey",
            "xMinForGraphKey",
            "yMaxForGraphKey",
            "Angle Mode",
            "Graph Mode",
            "nHasBecomeActiveKey",
            "<string>y1(</string>",
            "<string>@k1</string>",
            "<real>nan</real>",
            "<true/>"};
}
