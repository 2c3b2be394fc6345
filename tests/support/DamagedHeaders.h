#pragma once

// A family of damaged MP4 headers, each made from a real clip (its index
// after its samples, as the car writes it) by changing one declaration so
// that the clip's own data contradict it. Every reader of footage must
// measure such a clip against what it really holds.

#include <QByteArray>
#include <QString>
#include <vector>

namespace DamagedHeaders {

struct Damage {
    QString name;
    QByteArray (*apply)(const QByteArray &clip);
};

// Every damage of the family, by name.
const std::vector<Damage> &family();

// The family as the rows of a data-driven test, an int column "damage".
void addRows();
// That damage done to a copy of the clip at path.
QByteArray damaged(int damage, const QString &clipPath);

// The clip's data cut short, header intact: index first, then only `fraction` of its samples.
QByteArray cutShort(const QByteArray &indexFirstClip, double fraction);

} // namespace DamagedHeaders
