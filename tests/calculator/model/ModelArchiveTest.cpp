#include "calculator/model/ModelArchive.h"
#include "calculator/model/Model.h"
#include "calculator/model/ModelProperties.h"
#include "platform/files/AtomicFile.h"
#include "platform/files/SavingRegistry.h"
#include "platform/machine/DocumentsFolder.h"
#include "tests/engine/TokenLine.h"
#include "tests/platform/files/TemporaryFolder.h"
#include "tests/platform/text/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <map>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velmora {
namespace {

/// A folder for the user's files, and a model as at a first start.
class ModelArchive : public testing::Test {
protected:
    ModelArchive() { Model::resetForTests(); }
    ~ModelArchive() override { Model::resetForTests(); }

    static Model& freshModel() {
        Model::resetForTests();
        return Model::m();
    }
    static Model& loaded(PropertyDictionary archive) {
        loadArchivedModel(freshModel(), PropertyList(std::move(archive)));
        return Model::m();
    }
    std::filesystem::path file() const { return home.path() / "Calculator archive"; }

    TemporaryFolder home;
    PlainDocumentsFolder folder{home.path()};
    DocumentsFolderScope folderScope{folder};
};

void store(ExpressionList& list, int slot, const std::string& line) {
    list.setExpressionAtIndex(slot, ExpressionWithTokenArray(tokens(line)), false);
}

/// Every list full, every setting other than at a first start.
void fill(Model& model) {
    for (const ModelProperty& property : modelProperties()) {
        const PropertyList before = property.get(model);
        const auto next = before.asInteger().value_or(0) + 1;
        const bool fits = static_cast<double>(next) <= property.maximum;
        property.set(model, property.type == PropertyType::Boolean ? PropertyList(!*before.asBool())
                            : property.type == PropertyType::Integer
                                ? PropertyList(fits ? next : next - 2)
                                : PropertyList(*before.asDouble() / 3 + 1e-17));
    }
    const std::pair<ExpressionList*, const char*> lists[] = {{&model.equations(), "sin( x ) / "},
                                                             {&model.parametricX(), "cos( t ) + "},
                                                             {&model.parametricY(), "sin( t ) ^ "},
                                                             {&model.polarR(), "θ - "},
                                                             {&model.impliedFunctions(), "x y * "}};
    for (const auto& [list, line] : lists) {
        for (int slot = 0; slot < 4; ++slot) {
            store(*list, slot, line + std::to_string(slot + 1));
        }
    }
    const char* const history[] = {"2 + @k7", "1 +", "rand( 9 ) i"};
    for (int slot = 0; slot < 50; ++slot) {
        store(model.constants(), slot, std::to_string(slot % 10) + " / 3");
        model.constants().setNameAtIndex(slot, "name" + std::to_string(slot));
        model.history().addExpressionTokenArray(tokens(history[slot % 3]));
        model.history().entryAtIndex(slot)->keepResult();
    }
    model.impliedFunctions().levelCurveHeightsAtIndex(2)->setHeightAtIndex(0, 1.0 / 3);
    model.inequalityArray()[1].insertToken(Token("x"));
    model.inequalityArray()[1].setInequalityTypeWithToken(Token("≥"));
}

using Settings = std::map<std::string_view, PropertyList>;

Settings settings() {
    Settings settings;
    for (const ModelProperty& property : modelProperties()) {
        settings.emplace(property.key, property.get(Model::m()));
    }
    return settings;
}

void expectSettings(const Settings& expected) {
    for (const auto& [key, value] : settings()) {
        EXPECT_EQ(value, expected.at(key)) << key;
    }
}

std::vector<std::string> results() {
    std::vector<std::string> results;
    for (int row = 0; row < Model::m().history().nExpressions(); ++row) {
        results.push_back(Model::m().history().entryAtIndex(row)->resultText());
    }
    return results;
}

TEST_F(ModelArchive, bringsAFullModelBack) {
    fill(Model::m());
    int saves = 0;
    SavingRegistry::shared().registerSaver("converter", [&saves] { ++saves; });
    Model::m().save();
    SavingRegistry::shared().reset();
    EXPECT_EQ(saves, 1);
    Settings expected = settings();
    const std::vector<std::string> shown = results();
    PropertyDictionary saved = *archivedModel(Model::m()).asDictionary();

    Model& model = freshModel();
    model.setNHasBecomeActive(2); // activations before the load are not lost
    model.load();
    EXPECT_FALSE(model.trailingZeroes());
    model.setTrailingZeroes(true); // as when the results were noted
    expected["soundVolume"] = 0.3;
    expected["iOnMainKeyboard"] = false;
    expected["displayMode"] = 4;             // this is a phone
    expected["pickerSelectedUnitIndex"] = 0; // of earlier releases: no longer written
    expected["nHasBecomeActive"] = *expected["nHasBecomeActive"].asInteger() + 2;
    expectSettings(expected);
    EXPECT_EQ(results(), shown);
    EXPECT_EQ(model.constants().fullFunctionNameWithIndex(49), "name49");
    EXPECT_EQ(model.angleModeAsString(), "Degrees");
    saved["nHasBecomeActiveKey"] = model.nHasBecomeActive();
    saved["iOnMainKeyboard"] = false;
    const PropertyDictionary savedAgain = *archivedModel(model).asDictionary();
    EXPECT_EQ(savedAgain.size(), saved.size());
    for (const auto& [key, value] : savedAgain) {
        EXPECT_EQ(binaryPropertyList(value), binaryPropertyList(saved[key])) << key; // NaN is NaN
    }
}

TEST_F(ModelArchive, readsDefaultsForWhatIsAbsentOrUnusable) {
    const double infinity = std::numeric_limits<double>::infinity();
    constexpr int kMost = std::numeric_limits<int>::max();
    const std::tuple<PropertyDictionary, const char*, PropertyList> rows[] = {
        {{}, "displayMode", 1},
        {{{"displayModeEnumKey", 4}}, "displayMode", 1}, // a phone's
        {{{"displayModeEnumKey", 3}}, "displayMode", 3},
        {{{"displayModeEnumKey", 9}}, "displayMode", 1},
        {{{"PutLabelsOnGraphKey", false}}, "putLabelsOnGraph", false}, // not absent
        {{{"tEndForParametricGraph", 0.0}}, "tEndForParametricGraph", 0.0},
        {{{"ShakeToResetKey", 0}}, "shakeToResetGraph", true}, // of another type
        {{{"Angle Mode", true}}, "angleMode", 0},
        {{{"displayDigitsKey", "7"}}, "displayDigits", 5},
        {{{"displayDigitsKey", 13}}, "displayDigits", 5}, // out of range
        {{{"Graph Mode", -1}}, "graphType", 0},
        {{{"thetaEndForPolarGraph", infinity}}, "thetaEndForPolarGraph", 6.283185307179586},
        {{{"xMinForGraphKey", 2.0}}, "xMaxForGraph", 2 + 1e-9}, // one bound of four
        {{{"xMinForGraphKey", 2.0}}, "yMinForGraph", 0.0},
        {{{"xMaxForGraphKey", 2.0}}, "xMaxForGraph", 10.062695924764892},
        {{{"xMinForGraphKey", 2.0}, {"yMaxForGraphKey", infinity}}, "xMinForGraph", -10.0},
        {{{"iOnMainKeyboard", true}}, "iOnMainKeyboard", false},
        {{{"PickerSelectedUnitIndex", -3}}, "pickerSelectedUnitIndex", 0},
        {{{"thetaStartForPolarGraph", 2.0}, {"thetaEndForPolarGraph", infinity}},
         "thetaStartForPolarGraph",
         0.0},
        {{{"tStartForParametricGraph", -infinity}, {"tEndForParametricGraph", 7.0}},
         "tEndForParametricGraph",
         1.0},
        {{{"tStartForParametricGraph", "2"}, {"tEndForParametricGraph", 7.0}}, "tEndForParametricGraph", 7.0},
        {{{"nHasBecomeActiveKey", kMost}}, "nHasBecomeActive", kMost},
        {{{"nHasBecomeActiveKey", std::int64_t{1} << 40}}, "nHasBecomeActive", 0},
        {{{"nHasBecomeActiveKey", -1}}, "nHasBecomeActive", 0}};
    PlainDevice tablet(DeviceClass::Tablet);
    const DeviceScope scope(tablet);
    for (const auto& [archive, property, value] : rows) {
        EXPECT_EQ(loaded(archive).valueForKey(property), value) << property;
        EXPECT_EQ(Model::m().inequalityArray().size(), 4U);
    }
    loaded({{"nHasBecomeActiveKey", kMost}}).addActivations(1); // no sum may overflow
    loadArchivedModel(Model::m(), PropertyList(PropertyDictionary{{"nHasBecomeActiveKey", kMost}}));
    EXPECT_EQ(Model::m().nHasBecomeActive(), kMost);
    freshModel();
    Settings first = settings();
    fill(Model::m());
    for (const char* notOfALoad : {"trailingZeroes", "nHasBecomeActive"}) {
        first[notOfALoad] = *Model::m().valueForKey(notOfALoad);
    }
    loadArchivedModel(Model::m(), PropertyList());
    expectSettings(first);
    const PropertyArray rowsOfAnEarlierRelease{1, 2};
    loaded({{"SelectedUnitConverterPickerRows", rowsOfAnEarlierRelease}});
    EXPECT_EQ(Model::m().selectedUnitConverterPickerRows(), rowsOfAnEarlierRelease);
}

TEST_F(ModelArchive, valuesRowsWithoutOneOnceAllIsRead) {
    Model& model = loaded({{"ModelHistoryTokenArrays", PropertyArray{PropertyArray{"@k1", "+", "1"}}},
                           {"ConstantsArrays", PropertyArray{PropertyArray{"4"}}},
                           {"ConstantsNameArrays", PropertyArray{7, "mass"}}});
    EXPECT_EQ(model.history().entryAtIndex(0)->resultText(), "5");
    store(model.constants(), 0, "9");
    EXPECT_EQ(model.history().entryAtIndex(0)->resultText(), "5");
    EXPECT_EQ(model.constants().fullFunctionNameWithIndex(1), "mass");
}

TEST_F(ModelArchive, takesNoNameThatCouldNotHaveBeenTyped) {
    // "a(" would open a parenthesis in every line that holds the constant.
    const char* const names[] = {"a(", "k1", "good", "pi", "sin", "2a", "good", "Theta", "a\tb", "y1"};
    Model& model = loaded({{"ConstantsNameArrays", PropertyArray(std::begin(names), std::end(names))}});
    for (int slot = 0; slot < 10; ++slot) {
        EXPECT_EQ(model.constants().fullFunctionNameWithIndex(slot),
                  slot == 2 ? "good" : "k" + std::to_string(slot + 1));
    }
}

TEST_F(ModelArchive, keepsTheLineBeingTyped) {
    Model::m().setHalfTypedLine({tokens("2 sin( x"), {1, "lo"}});
    const PropertyDictionary saved = *archivedModel(Model::m()).asDictionary();
    const struct {
        PropertyList cursor;
        int expected;
    } cases[] = {{1, 1}, {-1, 3}, {4, 3}, {"end", 3}, {std::int64_t{1} << 40, 3}};
    for (const auto& c : cases) {
        PropertyDictionary archive = saved;
        PropertyDictionary line = *archive["HalfTypedLineKey"].asDictionary();
        line["CursorPositionKey"] = c.cursor;
        archive["HalfTypedLineKey"] = line;
        loadArchivedModel(Model::m(), archive);
        EXPECT_EQ(toDisplayString(Model::m().halfTypedLine().tokens), "2sin(x");
        EXPECT_EQ(Model::m().halfTypedLine().place, (LinePlace{c.expected, "lo"}));
    }
    loadArchivedModel(Model::m(), PropertyDictionary{{"HalfTypedLineKey", "no line"}});
    EXPECT_TRUE(Model::m().halfTypedLine().tokens.empty());
}

TEST_F(ModelArchive, setsAsideAFileItCannotRead) {
    for (const char* bytes : {"no archive", "bplist00", "<plist><array/></plist>", "a folder"}) {
        const LogRecorder log;
        if (std::string_view(bytes) == "a folder") {
            std::filesystem::create_directory(file());
        } else {
            writeFileAtomically(file(), std::string_view(bytes));
        }
        freshModel().load();
        EXPECT_THAT(log.lines(), testing::Contains("catch"));
        EXPECT_FALSE(std::filesystem::exists(file()));
        EXPECT_EQ(Model::m().displayDigits(), 5);
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(home.path()), {}), 4);
}

TEST_F(ModelArchive, survivesEveryFlippedBitAndEveryTruncation) {
    const LogRecorder log;
    store(Model::m().constants(), 0, "1 / 3");
    Model::m().history().addExpressionTokenArray(tokens("2 sin( @k1 )"));
    Model::m().history().addExpressionTokenArray(tokens("normVarBetween( G=6.674(8) , gcd( 1 2 , 8 ) )"));
    PropertyDictionary small = *archivedModel(Model::m()).asDictionary();
    small.erase("ConstantsNameArrays");
    small["ConstantsArrays"] = PropertyArray{small["ConstantsArrays"].asArray()->front()};
    const PropertyData bytes = binaryPropertyList(small);
    ASSERT_GT(bytes.size(), 1800U);
    int understood = 0;
    const auto load = [&](const PropertyData& damaged) {
        const auto archive = readPropertyList(damaged);
        understood += archive ? 1 : 0;
        loadArchivedModel(Model::m(), archive.value_or(PropertyList()));
    };
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        load(PropertyData(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(i)));
        for (unsigned bit = 0; bit < 8; ++bit) {
            PropertyData flipped = bytes;
            flipped[i] ^= static_cast<std::uint8_t>(1U << bit);
            load(flipped);
        }
        EXPECT_FALSE(binaryPropertyList(archivedModel(Model::m())).empty());
    }
    EXPECT_GT(understood, 1000);
}

TEST_F(ModelArchive, aKilledProgramLeavesTheOldStateOrTheNew) {
    // A state is whole when its lines all say the same number.
    const auto saveState = [](int number) {
        for (int slot = 0; slot < 50; ++slot) {
            store(Model::m().constants(), slot, std::to_string(number % 7));
        }
        Model::m().setXMinForGraph(number % 7);
        Model::m().setXMaxForGraph(100);
        Model::m().save();
    };
    saveState(1);
    std::mt19937 random(7);
    int betweenStates = 0;
    for (int round = 0; round < 200; ++round) {
        std::array<int, 2> pipe{};
        ASSERT_EQ(::pipe(pipe.data()), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            // However slow the machine: the child tells how long a save takes it, then saves on and on.
            const auto begin = std::chrono::steady_clock::now();
            saveState(round);
            const std::chrono::duration<double> oneSave = std::chrono::steady_clock::now() - begin;
            const double seconds = oneSave.count();
            if (::write(pipe[1], &seconds, sizeof seconds) != sizeof seconds) {
                ::_exit(1);
            }
            for (int number = 0;; ++number) {
                saveState(number);
            }
        }
        ::close(pipe[1]);
        double oneSave = 0;
        ASSERT_EQ(::read(pipe[0], &oneSave, sizeof oneSave), static_cast<ssize_t>(sizeof oneSave));
        ::close(pipe[0]);
        std::this_thread::sleep_for(std::uniform_real_distribution(0.0, 2.0)(random) *
                                    std::chrono::duration<double>(oneSave));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        freshModel().load();
        const double number = Model::m().xMinForGraph();
        betweenStates += std::distance(std::filesystem::directory_iterator(home.path()), {}) > 1 ? 1 : 0;
        for (int slot = 0; slot < 50; ++slot) {
            ASSERT_EQ(Model::m().constants().expression(slot)->value(), number) << round;
        }
    }
    EXPECT_GT(betweenStates, 0) << "none was killed while it wrote";
}

} // namespace
} // namespace velmora
