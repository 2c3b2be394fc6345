#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>
#include <array>
#include <optional>

// The sidebar's sections. The raw value is the section's id: the label a
// person reads is translated where the sidebar is drawn.
class SidebarSection {
    Q_GADGET
public:
    enum Value : quint8 { drive, vault, map, health };
    Q_ENUM(Value)

    constexpr SidebarSection(Value v = drive) : value_(v) {}
    constexpr operator Value() const { return value_; }
    constexpr Value value() const { return value_; }

    static const std::array<SidebarSection, 4> &allCases();
    QString rawValue() const;
    QString id() const { return rawValue(); }
    static std::optional<SidebarSection> fromRawValue(QStringView raw);

private:
    Value value_;
};
