#include "support/Mp4Boxes.h"

#include <QFile>
#include <QtEndian>
#include <stdexcept>

namespace {

// Boxes whose payload is nothing but other boxes.
bool isContainer(const QByteArray &type)
{
    static const QList<QByteArray> containers{"moov", "trak", "mdia", "minf", "stbl", "edts", "dinf", "mvex", "udta"};
    return containers.contains(type);
}

std::runtime_error broken(const QByteArray &path)
{
    return std::runtime_error("no box at " + path.toStdString());
}

} // namespace

Mp4Boxes::Mp4Boxes(QByteArray file) : file_(std::move(file)) {}

Mp4Boxes Mp4Boxes::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("can't read " + path.toStdString());
    return Mp4Boxes(file.readAll());
}

QList<Mp4Boxes::Box> Mp4Boxes::find(const QByteArray &path) const
{
    QList<Box> chain;
    qsizetype from = 0;
    qsizetype to = file_.size();
    for (const QByteArray &step : path.split('/')) {
        QByteArray type = step;
        int wanted = 0;
        if (const qsizetype bracket = step.indexOf('['); bracket > 0) {
            type = step.left(bracket);
            wanted = step.mid(bracket + 1, step.size() - bracket - 2).toInt();
        }
        if (!chain.isEmpty() && !isContainer(chain.back().type))
            return {};
        int seen = 0;
        bool found = false;
        for (qsizetype at = from; at + 8 <= to;) {
            const qsizetype size = qFromBigEndian<quint32>(file_.constData() + at);
            if (size < 8 || at + size > to)
                return {};
            const QByteArray here = file_.mid(at, 8).mid(4);
            if (here == type && seen++ == wanted) {
                chain.push_back(Box{at, size, here});
                from = at + 8;
                to = at + size;
                found = true;
                break;
            }
            at += size;
        }
        if (!found)
            return {};
    }
    return chain;
}

bool Mp4Boxes::has(const QByteArray &path) const
{
    return !find(path).isEmpty();
}

QByteArray Mp4Boxes::payload(const QByteArray &path) const
{
    const QList<Box> chain = find(path);
    if (chain.isEmpty())
        throw broken(path);
    return file_.mid(chain.back().start + 8, chain.back().size - 8);
}

void Mp4Boxes::resize(const QList<Box> &chain, qsizetype delta)
{
    for (const Box &box : chain)
        qToBigEndian(quint32(box.size + delta), file_.data() + box.start);
}

void Mp4Boxes::setPayload(const QByteArray &path, const QByteArray &payload)
{
    const QList<Box> chain = find(path);
    if (chain.isEmpty())
        throw broken(path);
    const Box &box = chain.back();
    file_.replace(box.start + 8, box.size - 8, payload);
    resize(chain, payload.size() - (box.size - 8));
}

quint32 Mp4Boxes::field32(const QByteArray &path, int offset) const
{
    return qFromBigEndian<quint32>(payload(path).constData() + offset);
}

void Mp4Boxes::setField32(const QByteArray &path, int offset, quint32 value)
{
    QByteArray bytes = payload(path);
    qToBigEndian(value, bytes.data() + offset);
    setPayload(path, bytes);
}

void Mp4Boxes::setField16(const QByteArray &path, int offset, quint16 value)
{
    QByteArray bytes = payload(path);
    qToBigEndian(value, bytes.data() + offset);
    setPayload(path, bytes);
}

void Mp4Boxes::insertChild(const QByteArray &parent, const QByteArray &type, const QByteArray &payload)
{
    const QList<Box> chain = find(parent);
    if (chain.isEmpty())
        throw broken(parent);
    QByteArray box(8, '\0');
    qToBigEndian(quint32(8 + payload.size()), box.data());
    box.replace(4, 4, type);
    box += payload;
    file_.insert(chain.back().start + 8, box);
    resize(chain, box.size());
}

void Mp4Boxes::write(const QString &path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(file_) != file_.size())
        throw std::runtime_error("can't write " + path.toStdString());
}
