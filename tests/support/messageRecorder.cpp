#include "support/messageRecorder.h"

namespace kestrova::test {

namespace {

QStringList recorded;

QString levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        return QStringLiteral("fatal");
    }
    return QStringLiteral("unknown");
}

void record(QtMsgType type, QMessageLogContext const &, QString const & text)
{
    recorded.append(levelName(type) + QStringLiteral(": ") + text);
}

} // namespace

MessageRecorder::MessageRecorder()
{
    recorded.clear();
    previous = qInstallMessageHandler(record);
}

MessageRecorder::~MessageRecorder()
{
    qInstallMessageHandler(previous);
}

QStringList MessageRecorder::messages() const
{
    return recorded;
}

} // namespace kestrova::test
