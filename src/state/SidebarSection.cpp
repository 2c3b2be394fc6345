#include "state/SidebarSection.h"

const std::array<SidebarSection, 4> &SidebarSection::allCases()
{
    static const std::array<SidebarSection, 4> all{drive, vault, map, health};
    return all;
}

QString SidebarSection::rawValue() const
{
    switch (value_) {
    case drive: return QStringLiteral("Drive");
    case vault: return QStringLiteral("Vault");
    case map: return QStringLiteral("Map");
    case health: return QStringLiteral("Drive Health");
    }
    return {};
}

std::optional<SidebarSection> SidebarSection::fromRawValue(QStringView raw)
{
    for (SidebarSection s : allCases())
        if (s.rawValue() == raw)
            return s;
    return std::nullopt;
}
