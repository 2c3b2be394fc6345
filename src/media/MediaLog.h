#pragma once

// The media layer's one logging category: what it skipped or swallowed, and why.

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcMedia)
