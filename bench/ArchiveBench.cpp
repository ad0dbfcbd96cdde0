// Saving and loading a model filled to its limits: with the file, which is flushed to the disk.

#include "calculator/model/Model.h"
#include "engine/lines/Token.h"
#include "platform/machine/DocumentsFolder.h"
#include "platform/text/Log.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <unistd.h>

namespace velmora::bench {

namespace {

TokenArray tokensOf(const std::string& characters) {
    TokenArray tokens;
    for (const char character : characters) {
        tokens.emplace_back(Token(std::string(1, character)));
    }
    return tokens;
}

/// A full model and a folder for its file, removed at the end.
class FullModel {
public:
    FullModel() {
        Model::resetForTests();
        Model& model = Model::m();
        for (int i = 0; i < 50; ++i) {
            model.history().addExpressionTokenArray(tokensOf("12.5*(3+4)^2-7/8+" + std::to_string(i)));
            model.history().entryAtIndex(i)->keepResult();
            model.constants().setExpressionAtIndex(i, ExpressionWithTokenArray(tokensOf("1/3+2")), false);
            model.constants().setNameAtIndex(i, "constant" + std::to_string(i));
        }
        for (ExpressionList* list :
             {&model.equations(), &model.parametricX(), &model.parametricY(), &model.polarR()}) {
            for (int slot = 0; slot < 4; ++slot) {
                list->setExpressionAtIndex(slot, ExpressionWithTokenArray(tokensOf("2*t^2-x/5")), false);
            }
        }
        model.save();
    }
    ~FullModel() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    FullModel(const FullModel&) = delete;
    FullModel& operator=(const FullModel&) = delete;

private:
    LogScope m_quiet{[](std::string_view) {}};
    std::filesystem::path m_path =
        std::filesystem::temp_directory_path() / ("velmora-bench-" + std::to_string(::getpid()));
    PlainDocumentsFolder m_folder{m_path};
    DocumentsFolderScope m_scope{m_folder};
};

void saveModel(benchmark::State& state) {
    const FullModel model;
    for ([[maybe_unused]] auto step : state) {
        Model::m().save();
    }
}
BENCHMARK(saveModel)->Unit(benchmark::kMillisecond);

void loadModel(benchmark::State& state) {
    const FullModel model;
    for ([[maybe_unused]] auto step : state) {
        Model::m().load();
    }
}
BENCHMARK(loadModel)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora::bench
