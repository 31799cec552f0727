#pragma once

#include <QtCore/QObject>

namespace zelvor {

// Hears SIGTERM, SIGINT and SIGHUP and says so inside the event loop, where the program can end in order.
// One object a program.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    void readSignal();

    int m_readEnd = -1;
};

} // namespace zelvor
