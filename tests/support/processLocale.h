#pragma once

#include <QLocale>

#include <clocale>
#include <string>

namespace kestrova::test {

/// Sets the locale of the C library, and Qt's default locale, for as long as it lives.
class ProcessLocale {
public:
    explicit ProcessLocale(char const * name, QLocale const & qtLocale = QLocale::c())
        : previous(std::setlocale(LC_ALL, nullptr))
        , isAvailable_(std::setlocale(LC_ALL, name) != nullptr)
    {
        QLocale::setDefault(qtLocale);
    }

    ~ProcessLocale()
    {
        std::setlocale(LC_ALL, previous.c_str());
        QLocale::setDefault(previousQtLocale);
    }

    ProcessLocale(ProcessLocale const &) = delete;
    ProcessLocale & operator=(ProcessLocale const &) = delete;

    /// False when the system does not have the locale; the C library's locale is as it was then.
    bool isAvailable() const { return isAvailable_; }

private:
    std::string previous;
    QLocale previousQtLocale;
    bool isAvailable_;
};

} // namespace kestrova::test
