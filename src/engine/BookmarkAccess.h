#pragma once

#include "model/BookmarkError.h"
#include "model/BookmarkKey.h"

#include <QString>

// The engine's part that remembers the drive and Vault folders across
// launches. Runs on the caller's thread.
class BookmarkAccess {
public:
    virtual ~BookmarkAccess() = default;

    // Raises when the folder can't be remembered.
    virtual void saveBookmark(const QString &url, BookmarkKey key) = 0;
    virtual BookmarkResult resolveBookmark(BookmarkKey key) = 0;
};
