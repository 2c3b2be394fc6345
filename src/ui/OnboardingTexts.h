#pragma once

#include "model/VolumeCandidate.h"

#include <QString>
#include <QVariantList>
#include <QVariantMap>

// The wizard's and the encryption guide's words, and the few rules behind
// them (the picked root, the counts line).
namespace OnboardingTexts {

// Fixed texts by key, for QML (introTitle, introText, pickerNote, …).
QVariantMap texts();

// "Found 3 events so far, across 12 clips."
QString scanCountsText(int eventsFound, int clipsFound);
// The scan root for a folder chosen in the picker: the folder itself when it
// is named exactly "TeslaCam", else its "TeslaCam" subfolder (which need not
// exist; the scan says so).
QString rootForChosenFolder(const QString &chosen);
// "Is this your Tesla drive? — NAME"
QString candidateHeading(const VolumeCandidate &candidate);
// The capacity as the system writes byte counts; empty when unknown.
QString candidateCapacity(const VolumeCandidate &candidate);
// The encryption guide's four steps: symbolName, title, detail.
QVariantList encryptionSteps();
// Its two notes: symbolName, text.
QVariantList encryptionNotes();

} // namespace OnboardingTexts
