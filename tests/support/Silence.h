#pragma once

#include <QtGlobal>

namespace WyTest {

/// What Qt and its decoders complain of counts for nothing while it lives.
class Silence
{
public:
    Silence()
        : m_previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}))
    {
    }
    ~Silence() { qInstallMessageHandler(m_previous); }

private:
    const QtMessageHandler m_previous;
};

} // namespace WyTest
