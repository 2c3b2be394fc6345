#pragma once

#include "FileChooser.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

// Answers the open file dialog as a person would: waits for it to appear,
// puts the path into its name field and clicks its accept button. Works on
// Qt's own dialog, which is what stands without a desktop's platform theme.
namespace FileDialogDriver {

inline QFileDialog *waitForDialog(int ms = 10000)
{
    QFileDialog *dialog = nullptr;
    const bool shown = QTest::qWaitFor([&] { return (dialog = FileChooser::current()) && dialog->isVisible(); }, ms);
    return shown ? dialog : nullptr;
}

// The line of guidance over the dialog, empty when there is none.
inline QString message(QFileDialog *dialog)
{
    const auto *label = dialog ? dialog->findChild<QLabel *>(QStringLiteral("fileChooserMessage")) : nullptr;
    return label && label->isVisible() ? label->text() : QString();
}

inline QPushButton *acceptButton(QFileDialog *dialog)
{
    auto *box = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    if (!box)
        return nullptr;
    return box->button(dialog->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save : QDialogButtonBox::Open);
}

// What stands in the name field.
inline QString typedName(QFileDialog *dialog)
{
    const auto *edit = dialog ? dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")) : nullptr;
    return edit ? edit->text() : QString();
}

enum class ReplaceExisting { no, yes };

// True once the dialog took the answer and went; `replace` answers whether to save over a file.
inline bool answer(const QString &path, ReplaceExisting replace = ReplaceExisting::no)
{
    QFileDialog *dialog = waitForDialog();
    if (!dialog)
        return false;
    auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    QPushButton *accept = acceptButton(dialog);
    if (!edit || !accept)
        return false;
    // Pasted whole: typed a key at a time, each "/" would move the dialog
    // into that folder while its listing loads, which races with the typing.
    edit->setFocus();
    edit->selectAll();
    edit->setText(path);
    if (!QTest::qWaitFor([&] { return accept->isEnabled(); }, 5000))
        return false;
    // The question runs its own event loop inside the click: answer it from a timer.
    QPointer<QFileDialog> guard(dialog);
    QTimer answerer;
    answerer.setInterval(20);
    QObject::connect(&answerer, &QTimer::timeout, [guard, replace] {
        if (!guard)
            return;
        auto *question = guard->findChild<QMessageBox *>();
        if (!question || !question->isVisible())
            return;
        if (QAbstractButton *button = question->button(replace == ReplaceExisting::yes ? QMessageBox::Yes : QMessageBox::No))
            button->click();
    });
    answerer.start();
    QTest::mouseClick(accept, Qt::LeftButton);
    return QTest::qWaitFor([] { return FileChooser::current() == nullptr; }, 5000);
}

inline bool cancel()
{
    QFileDialog *dialog = waitForDialog();
    if (!dialog)
        return false;
    QTest::keyClick(dialog, Qt::Key_Escape);
    return QTest::qWaitFor([] { return FileChooser::current() == nullptr; }, 5000);
}

} // namespace FileDialogDriver
