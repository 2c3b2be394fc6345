#pragma once

#include <QJsonObject>
#include <QString>
#include <array>
#include <optional>

// One non-fatal finding of a scan.
struct ScanIssue {
    class Kind {
    public:
        enum Value : quint8 { unknownFile, unknownCameraSuffix, unreadableFolder, badEventJSON };
        constexpr Kind(Value v) : value_(v) {}
        constexpr operator Value() const { return value_; }
        constexpr Value value() const { return value_; }
        static const std::array<Kind, 4> &allCases();
        QString rawValue() const;
        static std::optional<Kind> fromRawValue(QStringView raw);
        QJsonValue toJson() const { return rawValue(); }
        static Kind fromJson(const QJsonValue &value);

    private:
        Value value_;
    };

    Kind kind = Kind::unknownFile;
    QString path; // always the full path

    QString id() const { return kind.rawValue() + QLatin1Char('|') + path; }

    bool operator==(const ScanIssue &) const = default;

    QJsonObject toJson() const;
    static ScanIssue fromJson(const QJsonValue &value);
};

size_t qHash(const ScanIssue &i, size_t seed = 0) noexcept;
