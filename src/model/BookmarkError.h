#pragma once

#include <QString>
#include <exception>
#include <string>
#include <variant>

// Why a remembered folder could not be had back.
class BookmarkError : public std::exception {
public:
    enum Case : quint8 { failed, notFound, stale };

    static BookmarkError makeFailed(const QString &message) { return BookmarkError(failed, message); }
    static BookmarkError makeNotFound() { return BookmarkError(notFound, {}); }
    static BookmarkError makeStale() { return BookmarkError(stale, {}); }

    Case errorCase() const { return case_; }
    // The carried message of `failed`; empty for the other cases.
    const QString &message() const { return message_; }
    const char *what() const noexcept override { return text_.c_str(); }

    bool operator==(const BookmarkError &o) const { return case_ == o.case_ && message_ == o.message_; }
    bool operator==(Case c) const { return case_ == c; }

private:
    BookmarkError(Case c, const QString &message);
    Case case_;
    QString message_;
    std::string text_;
};

// The answer of a resolve: the folder's path, or why there is none.
using BookmarkResult = std::variant<QString, BookmarkError>;
