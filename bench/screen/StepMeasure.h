#pragma once

#include <QQuickView>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

namespace velmora {

/// The time that the processor has worked for the program. The wait for the next frame is none of it, and
/// neither is what other programs do meanwhile.
inline double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Steps of the real scene, each until its frame stands.
class StepMeasure {
public:
    explicit StepMeasure(QQuickView& window) : m_window(window) {
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { ++m_frames; });
    }

    /// Runs the steps and prints what they cost. False when the 95th of a hundred takes longer than a frame,
    /// or than the limit given instead, or when a step was not painted.
    bool measure(const char* name, const std::function<void(int)>& step,
                 double limitMilliseconds = kFrameMilliseconds) {
        std::vector<double> costs;
        int unpainted = 0;
        for (int i = 0; i < kSteps; ++i) {
            const int before = m_frames;
            const double start = processorMilliseconds();
            step(i);
            if (!QTest::qWaitFor([&] { return m_frames > before; }, kPatienceMilliseconds)) {
                ++unpainted;
            }
            costs.push_back(processorMilliseconds() - start);
        }
        std::ranges::sort(costs);
        m_longest = std::max(m_longest, costs.back());
        const auto percentile = [&](int percent) { return costs[costs.size() * std::size_t(percent) / 100]; };
        std::printf(
            "%-24s %d steps, %d unpainted: median %.2f ms, 95th percentile %.2f ms, longest %.2f ms\n", name,
            kSteps, unpainted, percentile(50), percentile(95), costs.back());
        return unpainted == 0 && percentile(95) < limitMilliseconds;
    }

    /// Of all steps measured, in milliseconds.
    double longest() const { return m_longest; }

private:
    static constexpr int kSteps = 300;
    static constexpr double kFrameMilliseconds = 16;
    static constexpr int kPatienceMilliseconds = 500;

    QQuickView& m_window;
    int m_frames = 0;
    double m_longest = 0;
};

} // namespace velmora
