#pragma once

#include <QString>

#include <stdexcept>

namespace vorkan {

// A control or other object asked for by a name that is not there.
class NilObjectException : public std::runtime_error {
public:
    explicit NilObjectException(const QString& what)
        : std::runtime_error("NilObjectException: " + what.toStdString())
    {}
};

} // namespace vorkan
