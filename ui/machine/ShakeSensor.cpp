#include "ui/machine/ShakeSensor.h"

#include "platform/machine/Clock.h"

namespace velmora {

namespace {

constexpr int kReadingsPerSecond = 50; // ten or so for each swing of a hand

} // namespace

ShakeSensor::ShakeSensor(QObject* parent) : QObject(parent) {
    m_accelerometer.setDataRate(kReadingsPerSecond);
    connect(&m_accelerometer, &QAccelerometer::readingChanged, this, &ShakeSensor::read);
}

void ShakeSensor::setActive(bool active) {
    if (active == m_accelerometer.isActive()) {
        return;
    }
    m_detector.reset();
    m_accelerometer.setActive(active);
}

void ShakeSensor::read() {
    const QAccelerometerReading* reading = m_accelerometer.reading();
    if (reading != nullptr &&
        m_detector.accelerationRead({reading->x(), reading->y(), reading->z()}, monotonicSeconds())) {
        Q_EMIT shaken();
    }
}

} // namespace velmora
