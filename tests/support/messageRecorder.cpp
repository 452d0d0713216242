#include "support/messageRecorder.h"

namespace kestrova::test {

namespace {

QStringList recorded;
QStringList recordedSources;

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

QString sourceOf(QMessageLogContext const & context)
{
    if (context.file == nullptr && context.line == 0 && context.function == nullptr)
        return QString();
    return QStringLiteral("%1:%2 %3")
        .arg(QString::fromUtf8(context.file))
        .arg(context.line)
        .arg(QString::fromUtf8(context.function));
}

void record(QtMsgType type, QMessageLogContext const & context, QString const & text)
{
    QString const flaw = context.category ? QString() : QStringLiteral(" without a category");
    recorded.append(levelName(type) + flaw + QStringLiteral(": ") + text);
    recordedSources.append(sourceOf(context));
}

} // namespace

MessageRecorder::MessageRecorder()
{
    recorded.clear();
    recordedSources.clear();
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

QStringList MessageRecorder::sources() const
{
    return recordedSources;
}

} // namespace kestrova::test
