#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace velmora {

/// Turns SIGTERM, SIGINT and SIGHUP (the terminal has gone) into the end of the event loop, so that a
/// program that is asked to end still saves. A signal that is ignored stays so. At most one object at a time.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    void requested();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace velmora
