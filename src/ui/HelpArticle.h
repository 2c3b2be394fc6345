#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <optional>

// The seven fixed articles of the help window, in their order.
class HelpArticle {
public:
    enum Value : quint8 {
        sentryMode,
        oneMinuteClips,
        corruptionExplained,
        encryptionExplained,
        howVaultWorks,
        readOnlyPromise,
        keyboardShortcuts
    };

    constexpr HelpArticle(Value v = sentryMode) : value_(v) {}
    constexpr operator Value() const { return value_; }
    constexpr Value value() const { return value_; }

    static const std::array<HelpArticle, 7> &allCases();
    QString rawValue() const; // the case name
    static std::optional<HelpArticle> fromRawValue(QStringView raw);

    QString title() const;
    QString symbolName() const;
    // The body in paragraphs, as shown, top to bottom.
    QStringList paragraphs() const;
    // The list shown between the first and the last paragraph; only the
    // keyboard article has one.
    QStringList listLines() const;

private:
    Value value_;
};
