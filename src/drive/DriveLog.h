#pragma once

// The drive reader's logging category: what it swallowed, and why.

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcDrive)
