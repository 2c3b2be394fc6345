#pragma once

#include <QString>
#include <exception>
#include <string>

// Why a report or an evidence package couldn't be made, as one plain
// sentence the user reads. A stop is CancellationError, not this.
class ReportError : public std::exception {
public:
    explicit ReportError(const QString &message) : message_(message), what_(message.toStdString()) {}
    const QString &message() const { return message_; }
    const char *what() const noexcept override { return what_.c_str(); }

private:
    QString message_;
    std::string what_;
};
