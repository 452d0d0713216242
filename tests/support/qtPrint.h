#pragma once

#include <QString>

#include <ostream>

/// How GoogleTest prints a text.
inline void PrintTo(QString const & text, std::ostream * stream)
{
    *stream << '"' << text.toStdString() << '"';
}
