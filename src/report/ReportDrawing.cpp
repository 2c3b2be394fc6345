#include "report/ReportDrawing.h"

#include <QPainter>
#include <QTextCharFormat>
#include <QTextDocument>

namespace {
constexpr int indexProperty = QTextFormat::UserProperty + 1;
}

ReportDrawing::ReportDrawing(QTextDocument *document) : QObject(document)
{
    document->documentLayout()->registerHandler(objectType, this);
}

QTextCharFormat ReportDrawing::add(Paint paint, double heightPerWidth)
{
    QTextCharFormat format;
    format.setObjectType(objectType);
    format.setProperty(indexProperty, int(entries_.size()));
    entries_.push_back({std::move(paint), heightPerWidth});
    return format;
}

QSizeF ReportDrawing::intrinsicSize(QTextDocument *document, int, const QTextFormat &format)
{
    const int index = format.property(indexProperty).toInt();
    // A hair under the text's width: a line exactly as wide wraps.
    const double width = document->pageSize().width() - 2 * document->documentMargin() - 2;
    if (index < 0 || size_t(index) >= entries_.size())
        return {width, 1};
    return {width, width * entries_[size_t(index)].heightPerWidth};
}

void ReportDrawing::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *, int, const QTextFormat &format)
{
    const int index = format.property(indexProperty).toInt();
    if (index >= 0 && size_t(index) < entries_.size())
        entries_[size_t(index)].paint(*painter, rect);
}
