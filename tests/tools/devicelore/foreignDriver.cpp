// A database driver QSQLITE with a copy of SQLite of its own, as some distributions of Qt have it: it is
// linked to the static library, and knows nothing of what is registered in the system's one. With REFUSES
// defined, it is a driver that is found and cannot be used.

#include <QSqlDriver>
#include <QSqlDriverPlugin>
#include <QSqlResult>
#include <QVariant>

#include <sqlite3.h>

namespace {

/// The first row of a statement.
class FirstRow : public QSqlResult {
public:
    FirstRow(QSqlDriver const * driver, sqlite3 * database)
        : QSqlResult(driver)
        , handle(database)
    {}

protected:
    bool reset(QString const & statement) override
    {
        sqlite3_stmt * prepared = nullptr;
        sqlite3_prepare_v2(handle, statement.toUtf8().constData(), -1, &prepared, nullptr);
        bool const hasRow = sqlite3_step(prepared) == SQLITE_ROW;
        if (hasRow)
            value = QString::fromUtf8(reinterpret_cast<char const *>(sqlite3_column_text(prepared, 0)));
        sqlite3_finalize(prepared);
        setSelect(true);
        setActive(hasRow);
        return hasRow;
    }

    QVariant data(int /*column*/) override { return value; }

    bool isNull(int /*column*/) override { return false; }

    bool fetch(int row) override
    {
        setAt(row);
        return row == 0;
    }

    bool fetchFirst() override { return fetch(0); }

    bool fetchLast() override { return fetch(0); }

    int size() override { return 1; }

    int numRowsAffected() override { return 0; }

private:
    sqlite3 * handle;
    QString value;
};

class ForeignDriver : public QSqlDriver {
public:
    ~ForeignDriver() override { ForeignDriver::close(); }

    bool hasFeature(DriverFeature /*feature*/) const override { return false; }

    bool open(QString const & name, QString const & /*user*/, QString const & /*password*/,
              QString const & /*host*/, int /*port*/, QString const & /*options*/) override
    {
        int const opened = sqlite3_open_v2(name.toUtf8().constData(), &handle,
                                           SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI, nullptr);
        if (opened != SQLITE_OK) {
            close(); // SQLite hands out a connection then, too
            return false;
        }
        setOpen(true);
        return true;
    }

    void close() override
    {
        sqlite3_close(handle);
        handle = nullptr;
        setOpen(false);
    }

    QSqlResult * createResult() const override { return new FirstRow(this, handle); }

private:
    sqlite3 * handle = nullptr;
};

} // namespace

class ForeignDriverPlugin : public QSqlDriverPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QSqlDriverFactoryInterface" FILE "foreignDriver.json")

public:
    QSqlDriver * create(QString const & /*key*/) override
    {
#if defined(REFUSES)
        return nullptr;
#else
        return new ForeignDriver;
#endif
    }
};

#include "foreignDriver.moc"
