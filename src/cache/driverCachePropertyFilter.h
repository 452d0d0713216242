#pragma once

#include "cache/devicePropertyFilterItem.h"
#include "records/deviceloreExport.h"

#include <QHash>
#include <QString>
#include <QStringList>

class QSqlDatabase;

namespace kestrova::Morvel::Devicelore {

/// The property filters of all databases: read as a whole at the first question, at the access level of that
/// question.
///
/// Only an empty store is filled. While no filter is visible, every question reads all databases again.
class KESTROVA_DEVICELORE_EXPORT CDriverCachePropertyFilter {
public:
    CDriverCachePropertyFilter();

    /// A copy and its source are one store: the source must outlive every use of the copy, and only one of
    /// them may be destroyed. Copying exists because an exported class has it; nothing in the library uses
    /// it.
    CDriverCachePropertyFilter(CDriverCachePropertyFilter const & other);
    CDriverCachePropertyFilter & operator=(CDriverCachePropertyFilter const & other);

    virtual ~CDriverCachePropertyFilter();

    /// Whether the next question reads the databases.
    bool isEmpty() const;

    /// Adds the filters up to that level. The first database that defines a filter decides its statement and
    /// level; what later ones give for the same name is appended without duplicates. The first one's own
    /// duplicates stay.
    ///
    /// A database without the table is skipped. When its filters cannot be read it is skipped too, and that
    /// is logged as critical. A faulty statement of a filter gives no properties and no message.
    void readFiltersFromDatabase(unsigned char accessLevel, QStringList const & connectionNames);

    /// The names of all filters, in no defined order.
    QStringList enumDevicePropertyFilter(unsigned char accessLevel, QStringList const & connectionNames);

    /// The properties of a filter; empty when there is none of that name.
    QStringList devicePropertyFilter(QString const & name, unsigned char accessLevel,
                                     QStringList const & connectionNames);

    /// The statement of a filter; null when there is none of that name.
    QString devicePropertyFilterExpression(QString const & name, unsigned char accessLevel,
                                           QStringList const & connectionNames);

    void clear();

protected:
    using Filters = QHash<QString, CDevicePropertyFilterItem *>;

    Filters * filters; ///< by name; owns the records

private:
    void fillIfEmpty(unsigned char accessLevel, QStringList const & connectionNames);
    void addFilter(CDevicePropertyFilterItem const & definition, QStringList const & properties);
};

} // namespace kestrova::Morvel::Devicelore
