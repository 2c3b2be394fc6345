#pragma once

#include <QString>
#include <exception>
#include <string>

namespace Exporter {

// Why an export failed. Each case gives a plain sentence, translated; only
// exportFailed carries its own text, made (and translated) where the failure
// happened.
class ExportError : public std::exception {
public:
    enum Case { exportFailed, noClipsForCamera, compositionFailed, exportSessionUnavailable, cancelled };

    explicit ExportError(Case c, const QString &text = QString());
    static ExportError failed(const QString &text) { return ExportError(exportFailed, text); }

    Case errorCase() const { return case_; }
    // The payload of exportFailed; empty for the other cases.
    const QString &text() const { return text_; }
    QString message() const;
    const char *what() const noexcept override { return what_.c_str(); }

private:
    Case case_;
    QString text_;
    std::string what_;
};

} // namespace Exporter
