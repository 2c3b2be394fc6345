#include "model/VolumeCandidate.h"

#include <QHashFunctions>

size_t qHash(const VolumeCandidate &c, size_t seed) noexcept
{
    return qHashMulti(seed, c.volumeURL, c.name, c.hasTeslaCamFolder, c.capacityBytes.value_or(-1),
                      c.freeBytes.value_or(-1));
}
