#pragma once

#include "diff/view.h"

#include <QJsonObject>
#include <QStringList>
#include <QVector>

namespace kestrova::authoring {

/// One thing that an application would see change.
struct Change {
    enum Kind { Added, Removed, Changed };

    Kind kind;
    QString thing;
    QString member;      ///< empty when the thing itself came or went
    QString before;      ///< null when it was not there
    QString after;       ///< null when it is gone
    bool isBreaking;     ///< what worked before may fail now
    QStringList devices; ///< that have it; empty for what belongs to no device
};

/// The changes from one set to the other, sorted: those of no device first, then by thing and member. A
/// change that several devices have alike stands once.
QVector<Change> changesBetween(SetView const & before, SetView const & after);

/// The changes from one device to the other, under the name of the latter.
QVector<Change> changesBetween(Things const & before, Things const & after, QString const & device);

QString changesText(QVector<Change> const & changes);
QJsonObject changesJson(QVector<Change> const & changes);

} // namespace kestrova::authoring
