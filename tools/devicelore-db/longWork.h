#pragma once

#include "sqlcipher/inspection.h"

#include <QString>

namespace kestrova::authoring {

/// While it lives, a work is under way that may take long: its progress is shown on stderr, if that is a
/// terminal, and a signal that would end the tool ends the work at its next step instead, so that no file
/// begun is left behind.
class LongWork {
public:
    enum Ending {
        WritesFiles,   ///< a signal ends it at its next step
        WritesNothing, ///< a signal may end the tool at once
    };

    explicit LongWork(QString const & action, Ending ending = WritesFiles);
    ~LongWork();
    LongWork(LongWork const &) = delete;
    LongWork & operator=(LongWork const &) = delete;

    /// To be called at each step. Throws Failure after a signal.
    sqlcipher::Progress progress();

private:
    void show(int percent);

    QString action;
    bool isShown; ///< stderr is a terminal
    int shownPercent = -1;
};

} // namespace kestrova::authoring
