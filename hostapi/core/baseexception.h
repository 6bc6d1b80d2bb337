#pragma once

#include "hostapi_global.h"

#include <QByteArray>
#include <QString>

#include <exception>

namespace Core::Exception {

/// The only exception type that crosses the contract. It carries one readable sentence that says
/// what failed.
class HOSTAPI_EXPORT BaseException : public std::exception
{
public:
    explicit BaseException(const QString &message);
    BaseException(const BaseException &other) = default;
    BaseException &operator=(const BaseException &other) = default;
    ~BaseException() override;

    /// The sentence, as it was given to the constructor.
    [[nodiscard]] QString getMessage() const;

    /// The sentence in UTF-8; valid as long as the exception object lives.
    [[nodiscard]] const char *what() const noexcept override;

private:
    QByteArray m_message;
};

} // namespace Core::Exception
