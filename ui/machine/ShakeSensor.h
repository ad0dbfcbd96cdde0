#pragma once

#include "platform/machine/ShakeDetector.h"

#include <QAccelerometer>
#include <QObject>

namespace velmora {

/// Says when the device is shaken. A machine without an accelerometer is never shaken; while inactive the
/// sensor is off and costs no power.
class ShakeSensor : public QObject {
    Q_OBJECT

public:
    explicit ShakeSensor(QObject* parent = nullptr);

    void setActive(bool active);

Q_SIGNALS:
    void shaken();

private:
    void read();

    QAccelerometer m_accelerometer;
    ShakeDetector m_detector;
};

} // namespace velmora
