#include "calculator/model/Model.h"
#include "platform/files/SavingRegistry.h"
#include "tests/ui/RunningProgram.h"
#include "ui/machine/TerminationSignals.h"
#include "ui/painting/Artwork.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <csignal>

namespace velmora {

namespace {

/// Relative luminance and contrast as WCAG 2.1 defines them.
double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrastWithWhite(const QColor& color) { return 1.05 / (luminance(color) + 0.05); }

} // namespace

TEST(Artwork, leavesWhiteTextReadableOnEveryKey) {
    Artwork artwork;
    for (const char* name : {"buttona", "buttonb", "buttonc", "buttonf", "buttong", "buttons", "buttonh",
                             "buttonj", "buttonBTall", "buttona@2x"}) {
        SCOPED_TRACE(name);
        const QString id = QStringLiteral("2/2/") + QString::fromLatin1(name);
        const QImage face = artwork.requestImage(id, nullptr, {60, 40});
        ASSERT_EQ(face.size(), QSize(120, 80));
        EXPECT_EQ(face.pixelColor(0, 0).alpha(), 0); // rounded
        for (int y = 4; y < face.height() - 6; ++y) {
            const QColor color = face.pixelColor(face.width() / 2, y);
            EXPECT_EQ(color.alpha(), 255);
            EXPECT_GE(contrastWithWhite(color), 4.5) << "row " << y;
        }
        const QImage pressed = artwork.requestImage(id + QLatin1String(kPressedSuffix), nullptr, {60, 40});
        EXPECT_NE(pressed, face);
    }
}

TEST(QtPasteboard, keepsTextAndBytesOfATypeOfOurs) {
    QtPasteboard pasteboard;
    const PropertyData bytes{0, 255, 10, 0};
    pasteboard.setItems({{{std::string(kPlainTextType), std::string("θ=2π")},
                          {"app.velmora.bytes", bytes},
                          {"app.velmora.text", std::string("√2")}}});
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("θ=2π"));
    EXPECT_EQ(pasteboard.text(), "θ=2π");
    EXPECT_EQ(pasteboard.data("app.velmora.bytes"), bytes);
    const auto items = pasteboard.items();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(std::get<std::string>(items.front().at("app.velmora.text")), "√2");

    QGuiApplication::clipboard()->setText(QStringLiteral("from elsewhere"));
    EXPECT_EQ(pasteboard.data("app.velmora.bytes"), std::nullopt);
    EXPECT_EQ(pasteboard.text(), "from elsewhere");
}

TEST(QtTextMeasure, isInProportionToTheSize) {
    const QtTextMeasure measure;
    const double atTen = measure.width("sin(2πx)", 10, {});
    EXPECT_GT(atTen, 20);
    EXPECT_NEAR(measure.width("sin(2πx)", 15.5, {}), 1.55 * atTen, 0.02 * atTen);
    EXPECT_GT(measure.lineHeight(20, {}), 20);
    EXPECT_LT(measure.lineHeight(20, {}), 30);
}

TEST(QtTimerService, firesOnceOrRepeatedlyUntilItIsCancelled) {
    QtTimerService timers;
    int once = 0;
    int often = 0;
    const Subscription single = timers.start(0.005, TimerKind::OneShot, [&] { ++once; });
    Subscription repeating;
    repeating = timers.start(0.002, TimerKind::Repeating, [&] {
        if (++often == 3) {
            repeating.cancel(); // from within its own call
        }
    });
    {
        const Subscription dropped = timers.start(0, TimerKind::OneShot, [&] { once += 100; });
    }
    EXPECT_EQ(once, 0); // never from within the call that starts it
    EXPECT_TRUE(QTest::qWaitFor([&] { return once > 0 && often >= 3; }, 2000));
    QTest::qWait(20);
    EXPECT_EQ(once, 1);
    EXPECT_EQ(often, 3);
}

TEST(WindowLife, countsActivationsAndSavesInTheBackground) {
    int saves = 0;
    RunningProgram program;
    SavingRegistry::shared().registerSaver("test", [&] { ++saves; });
    EXPECT_EQ(Model::m().nHasBecomeActive(), 1);
    program.window().hide();
    program.settle();
    EXPECT_EQ(saves, 1);
    program.window().showMinimized(); // still in the background
    program.settle();
    EXPECT_EQ(saves, 1);
    SavingRegistry::shared().reset();
}

TEST(TerminationSignals, turnASignalIntoARequest) {
    constexpr int signals[] = {SIGTERM, SIGINT, SIGHUP};
    {
        std::signal(SIGHUP, SIG_IGN); // as under nohup
        const TerminationSignals deafToOne;
        EXPECT_EQ(std::signal(SIGHUP, SIG_IGN), SIG_IGN);
    }
    for (const int signal : signals) {
        std::signal(signal, SIG_DFL);
    }
    const TerminationSignals termination;
    int requests = 0;
    QObject::connect(&termination, &TerminationSignals::requested, &termination, [&] { ++requests; });
    for (const int signal : signals) {
        requests = 0;
        std::raise(signal);
        EXPECT_EQ(requests, 0); // nothing runs inside the handler
        EXPECT_TRUE(QTest::qWaitFor([&] { return requests == 1; }, 2000));
    }
}

} // namespace velmora
