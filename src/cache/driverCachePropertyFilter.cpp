#include "cache/driverCachePropertyFilter.h"

#include "cache/databaseAccess.h"
#include "core/qt5Conversions.h"

#include <QMessageLogger>
#include <QSet>
#include <QSqlError>
#include <QVariant>

namespace kestrova::Morvel::Devicelore {

namespace {

QSqlQuery filterRows(QSqlDatabase const & db, bool hasAccess)
{
    QSqlQuery rows = preparedQuery(
        db, hasAccess ? QStringLiteral("SELECT FilterName,Expression,Access FROM DevicePropertyFilter")
                      : QStringLiteral("SELECT FilterName,Expression FROM DevicePropertyFilter"));
    if (!executeWhole(rows)) { // the error is that of executing, also where preparing has failed before
        QSqlError const error = rows.lastError();
        QMessageLogger(nullptr, 0, nullptr)
            .critical("Error %s (type: %d) accessing project database in %s %d",
                      error.text().toUtf8().constData(), int(error.type()), __FILE__, __LINE__);
    }
    return rows;
}

QList<CDevicePropertyFilterItem> definitionsIn(QSqlDatabase const & db, bool hasAccess)
{
    QList<CDevicePropertyFilterItem> definitions;
    QSqlQuery rows = filterRows(db, hasAccess);
    while (rows.next()) {
        CDevicePropertyFilterItem definition;
        definition.filterName = qt5::toText(rows.value(0));
        definition.expression = qt5::toText(rows.value(1));
        if (hasAccess)
            definition.access = static_cast<unsigned char>(qt5::toInt(rows.value(2)));
        definitions.append(definition);
    }
    return definitions;
}

} // namespace

CDriverCachePropertyFilter::CDriverCachePropertyFilter()
    : filters(new Filters)
{}

CDriverCachePropertyFilter::CDriverCachePropertyFilter(CDriverCachePropertyFilter const & other) = default;

CDriverCachePropertyFilter &
CDriverCachePropertyFilter::operator=(CDriverCachePropertyFilter const & other) = default;

CDriverCachePropertyFilter::~CDriverCachePropertyFilter()
{
    CDriverCachePropertyFilter::clear();
    delete filters;
}

void CDriverCachePropertyFilter::readFiltersFromDatabase(unsigned char accessLevel,
                                                         QStringList const & connectionNames)
{
    for (QString const & name : connectionNames) {
        QSqlDatabase const db = openConnection(name);
        QStringList const columns = tableColumns(db, QStringLiteral("DevicePropertyFilter"));
        if (columns.isEmpty())
            continue;
        bool const hasAccess = columns.contains(QLatin1String("Access"), Qt::CaseInsensitive);
        for (CDevicePropertyFilterItem const & definition : definitionsIn(db, hasAccess)) {
            if (definition.access <= accessLevel)
                addFilter(definition, firstColumn(queryRows(db, definition.expression)));
        }
    }
}

void CDriverCachePropertyFilter::addFilter(CDevicePropertyFilterItem const & definition,
                                           QStringList const & properties)
{
    CDevicePropertyFilterItem *& filter = (*filters)[definition.filterName];
    if (filter == nullptr) {
        filter = new CDevicePropertyFilterItem(definition);
        filter->properties = properties;
        return;
    }
    QSet<QString> known(filter->properties.cbegin(), filter->properties.cend());
    for (QString const & property : properties) {
        if (known.contains(property))
            continue;
        known.insert(property);
        filter->properties.append(property);
    }
}

bool CDriverCachePropertyFilter::isEmpty() const
{
    return filters->isEmpty();
}

void CDriverCachePropertyFilter::fillIfEmpty(unsigned char accessLevel, QStringList const & connectionNames)
{
    if (isEmpty())
        readFiltersFromDatabase(accessLevel, connectionNames);
}

QStringList CDriverCachePropertyFilter::enumDevicePropertyFilter(unsigned char accessLevel,
                                                                 QStringList const & connectionNames)
{
    fillIfEmpty(accessLevel, connectionNames);
    return filters->keys();
}

QStringList CDriverCachePropertyFilter::devicePropertyFilter(QString const & name, unsigned char accessLevel,
                                                             QStringList const & connectionNames)
{
    fillIfEmpty(accessLevel, connectionNames);
    CDevicePropertyFilterItem const * const filter = filters->value(name);
    return filter != nullptr ? filter->properties : QStringList();
}

QString CDriverCachePropertyFilter::devicePropertyFilterExpression(QString const & name,
                                                                   unsigned char accessLevel,
                                                                   QStringList const & connectionNames)
{
    fillIfEmpty(accessLevel, connectionNames);
    CDevicePropertyFilterItem const * const filter = filters->value(name);
    return filter != nullptr ? filter->expression : QString();
}

void CDriverCachePropertyFilter::clear()
{
    qDeleteAll(*filters);
    filters->clear();
}

} // namespace kestrova::Morvel::Devicelore
