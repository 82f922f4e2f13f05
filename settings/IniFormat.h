#pragma once

#include <QSettings>

namespace folionet {

// The QSettings format of our files (see IniText.h): INI whose values read back as their whole text, also where a
// person edited them by hand. QSettings' own INI splits a value at its commas and takes its backslashes away.
QSettings::Format VerbatimIniFormat();

// Whether the file of such settings was read to its end. Settings of one that was not are never written.
bool IsWholeReading(const QSettings& settings);

}  // namespace folionet
