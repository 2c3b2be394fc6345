#pragma once

#include <QString>

// A small tmpfs mounted on a fresh folder for the life of the object, and the
// folder removed again. Needs root; ok() tells whether the mount worked.
class TmpfsMount {
public:
    // The folder is made below parent, named from pattern ("name-XXXXXX").
    TmpfsMount(const QString &parent, const QString &pattern, const QString &options = QStringLiteral("size=8m"));
    ~TmpfsMount();
    TmpfsMount(const TmpfsMount &) = delete;
    TmpfsMount &operator=(const TmpfsMount &) = delete;

    bool ok() const { return mounted_; }
    const QString &path() const { return path_; }

private:
    QString path_;
    bool mounted_ = false;
};
