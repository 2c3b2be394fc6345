#include "report/EvidencePackage.h"

#include "report/ReportError.h"

namespace EvidencePackage {

void write(const std::vector<Item> &, const QString &, const Options &)
{
    throw ReportError(QStringLiteral("not yet"));
}

} // namespace EvidencePackage
