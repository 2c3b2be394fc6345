#include "health/Recommendation.h"

#include <QHashFunctions>

size_t qHash(const Recommendation &r, size_t seed) noexcept
{
    return qHashMulti(seed, r.id, int(r.severity), r.title, r.detail, r.symbolName);
}
