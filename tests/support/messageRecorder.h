#pragma once

#include <QStringList>
#include <QtGlobal>

namespace kestrova::test {

/// Takes everything that goes to Qt's message logger while it lives. One at a time.
class MessageRecorder {
public:
    MessageRecorder();
    ~MessageRecorder();
    MessageRecorder(MessageRecorder const &) = delete;
    MessageRecorder & operator=(MessageRecorder const &) = delete;

    /// Each message as "warning: text", with its level, or "warning without a category: text" without one.
    QStringList messages() const;

    /// Where each message says that it was logged, as "file:line function"; empty when it does not say.
    QStringList sources() const;

private:
    QtMessageHandler previous;
};

} // namespace kestrova::test
