#pragma once

#include "check/rules.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace kestrova::authoring {

/// Where something stands.
struct Place {
    QString file;
    QString table;   ///< empty: the file as a whole
    qint64 row = 0;  ///< its rowid, or its position in a table without one; 0: the table as a whole
    QString column;  ///< empty: the row as a whole
    QString subject; ///< what the row is about, in words that survive a renumbering: a GUID, a name, an id
};

/// One thing found.
struct Finding {
    Rule const * rule;
    Place place;
    QString value; ///< as the database has it
    QString message;
};

/// Collects findings.
class Findings {
public:
    /// The name must be that of a rule.
    void add(char const * rule, Place const & place, QString const & value, QString const & message);

    /// By file in the order of their checking, then table, row, column and rule.
    QVector<Finding> sorted() const;

    /// Files sort in the order in which they are told here.
    void setFiles(QStringList const & names) { files = names; }

private:
    QStringList files;
    QVector<Finding> all;
};

/// A value as it is shown: a text in quotation marks, bytes in hexadecimal digits, and not all of a long one.
QString shownValue(QVariant const & value);

/// A number as a message has it.
QString shownNumber(double number);

} // namespace kestrova::authoring
