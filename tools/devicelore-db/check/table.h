#pragma once

#include "core/qt5Conversions.h"

#include <QMap>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace kestrova::authoring {

/// A table of a database, read whole.
class Table {
public:
    /// A table that is not there has no rows and no columns. The name may be in any case, as in SQL.
    static Table read(QSqlDatabase const & database, QString const & name);

    QString name;        ///< as asked for
    QString spelledName; ///< as the database has it; null when it is not there
    QStringList columns; ///< as spelled
    QString trouble;     ///< why it could not be read to its end; empty if it could

    bool isPresent() const { return !spelledName.isNull(); }

    int rowCount() const { return static_cast<int>(rows.size()); }

    /// The rowid, or the position in a table without one. The id of Objects is its rowid.
    qint64 rowNumber(int row) const { return rowNumbers.at(row); }

    /// The position of a column in any case; -1 without it.
    int column(QString const & columnName) const;

    /// Invalid where the column is -1.
    QVariant value(int row, int columnIndex) const { return rows.at(row).value(columnIndex); }

    // The same by name, as the library's own reader converts it.
    QVariant value(int row, char const * columnName) const
    {
        return value(row, column(QLatin1String(columnName)));
    }

    QString text(int row, char const * columnName) const { return qt5::toText(value(row, columnName)); }

    int number(int row, char const * columnName) const { return qt5::toInt(value(row, columnName)); }

private:
    QVector<qint64> rowNumbers;
    QVector<QVector<QVariant>> rows;
    QMap<QString, int> columnPositions; ///< by name in lower case
};

} // namespace kestrova::authoring
