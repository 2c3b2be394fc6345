#include "model/BookmarkError.h"

BookmarkError::BookmarkError(Case c, const QString &message) : case_(c), message_(message)
{
    switch (c) {
    case failed:
        text_ = message.toStdString();
        break;
    case notFound:
        text_ = "No folder has been remembered yet.";
        break;
    case stale:
        text_ = "The remembered folder can no longer be found.";
        break;
    }
}
