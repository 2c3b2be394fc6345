#include "FileChooser.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QWindow>

namespace FileChooser {

namespace {

QPointer<QFileDialog> openDialog;

// The folder to start in: the nearest existing one, else home.
QString existingFolder(QString folder)
{
    while (!folder.isEmpty() && !QFileInfo(folder).isDir()) {
        const QString up = QFileInfo(folder).path();
        if (up == folder)
            break;
        folder = up;
    }
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

void addMessage(QFileDialog *dialog, const QString &message)
{
    // Present only when Qt drew the dialog itself.
    auto *grid = qobject_cast<QGridLayout *>(dialog->layout());
    if (!grid || message.isEmpty())
        return;
    auto *label = new QLabel(message, dialog);
    label->setObjectName(QStringLiteral("fileChooserMessage"));
    label->setWordWrap(true);
    label->setContentsMargins(0, 0, 0, 6);
    // Above everything else: shift the existing rows down by one.
    QList<std::tuple<QLayoutItem *, int, int, int, int>> items;
    while (grid->count() > 0) {
        int row, column, rowSpan, columnSpan;
        grid->getItemPosition(0, &row, &column, &rowSpan, &columnSpan);
        items.append({grid->takeAt(0), row, column, rowSpan, columnSpan});
    }
    grid->addWidget(label, 0, 0, 1, -1);
    for (const auto &[item, row, column, rowSpan, columnSpan] : items)
        grid->addItem(item, row + 1, column, rowSpan, columnSpan);
}

QWindow *applicationWindow()
{
    if (QWindow *w = QGuiApplication::focusWindow())
        return w;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *w : windows)
        if (w->isVisible() && !w->transientParent())
            return w;
    return nullptr;
}

} // namespace

QFileDialog *open(const Request &request, std::function<void(std::optional<QString>)> done)
{
    // One at a time: a second request while one is up goes to the one up.
    if (openDialog) {
        openDialog->raise();
        openDialog->activateWindow();
        return openDialog;
    }
    auto *dialog = new QFileDialog(nullptr, request.title, existingFolder(request.startFolder));
    dialog->setObjectName(QLatin1String(objectName));
    dialog->setWindowModality(Qt::ApplicationModal);
    if (request.mode == Mode::folder) {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly, true);
        dialog->setAcceptMode(QFileDialog::AcceptOpen);
    } else {
        dialog->setFileMode(QFileDialog::AnyFile);
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        if (!request.nameFilters.isEmpty())
            dialog->setNameFilters(request.nameFilters);
        if (!request.defaultSuffix.isEmpty())
            dialog->setDefaultSuffix(request.defaultSuffix);
        if (!request.suggestedName.isEmpty())
            dialog->selectFile(request.suggestedName);
    }
    if (!request.acceptLabel.isEmpty())
        dialog->setLabelText(QFileDialog::Accept, request.acceptLabel);
    addMessage(dialog, request.message);

    QObject::connect(dialog, &QFileDialog::finished, dialog, [dialog, done = std::move(done)](int result) {
        std::optional<QString> chosen;
        if (result == QDialog::Accepted) {
            const QStringList files = dialog->selectedFiles();
            if (!files.isEmpty() && !files.first().isEmpty())
                chosen = QDir::cleanPath(files.first());
        }
        dialog->deleteLater();
        if (done)
            done(chosen);
    });
    openDialog = dialog;
    // Qt's own dialog stands over the application's window.
    if (dialog->layout()) {
        dialog->winId();
        if (QWindow *handle = dialog->windowHandle())
            handle->setTransientParent(applicationWindow());
    }
    dialog->open();
    return dialog;
}

QFileDialog *current() { return openDialog; }

} // namespace FileChooser
