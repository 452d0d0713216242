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

    /// Each message as "warning: text", with the level in front.
    QStringList messages() const;

private:
    QtMessageHandler previous;
};

} // namespace kestrova::test
