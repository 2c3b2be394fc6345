#pragma once

#include <QAbstractTextDocumentLayout>
#include <QObject>
#include <QTextFormat>
#include <functional>
#include <vector>

class QTextDocument;

// Vector drawings in the flow of a text document (the report's map and
// chart): each is a painter function and an aspect, placed at the full
// width of the text, so on paper they stay sharp at any zoom.
class ReportDrawing : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    static constexpr int objectType = QTextFormat::UserObject + 1;
    using Paint = std::function<void(QPainter &, const QRectF &)>;

    explicit ReportDrawing(QTextDocument *document);

    // The character format of a new drawing; insert it with the object
    // replacement character.
    QTextCharFormat add(Paint paint, double heightPerWidth);

    QSizeF intrinsicSize(QTextDocument *document, int positionInDocument, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int positionInDocument,
                    const QTextFormat &format) override;

private:
    struct Entry {
        Paint paint;
        double heightPerWidth = 0.5;
    };
    std::vector<Entry> entries_;
};
