#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QFileDialog;

// Choosing a folder or a file name: the desktop's own dialog where its
// platform theme offers one (GTK, KDE, or the portal), Qt's built-in dialog
// otherwise. Never blocks: the answer comes back through `done` on the
// window's thread, nothing on cancel.
namespace FileChooser {

enum class Mode { folder, saveFile };

struct Request {
    Mode mode = Mode::folder;
    QString title;
    // A line of guidance over the built-in dialog; the desktop's own
    // dialogs have no place for it, so screens say it too.
    QString message;
    QString acceptLabel;
    QString startFolder;
    // Save only: the proposed name and the kinds of file offered.
    QString suggestedName;
    QStringList nameFilters;
    QString defaultSuffix;
};

// The dialog's object name, for whoever needs to find the open one.
inline constexpr const char *objectName = "fileChooser";

// Opens the dialog modal to the application and returns it (it deletes
// itself once answered). `done` gets an absolute path, or nothing.
QFileDialog *open(const Request &request, std::function<void(std::optional<QString>)> done);

// The open dialog, if there is one.
QFileDialog *current();

} // namespace FileChooser
