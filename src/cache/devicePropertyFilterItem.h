#pragma once

#include <QString>
#include <QStringList>

namespace kestrova::Morvel::Devicelore {

/// A named group of properties, and the statement that gave it.
struct CDevicePropertyFilterItem {
    unsigned char access = 0; ///< the level from which the group is visible
    QString expression;       ///< the SQL statement
    QString filterName;
    QStringList properties; ///< names of properties, in the order in which the statement gave them
};

} // namespace kestrova::Morvel::Devicelore
