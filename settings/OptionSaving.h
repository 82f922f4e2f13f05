#pragma once

#include "OptionRecords.h"
#include "SettingsStore.h"

namespace folionet {

// The saving of the option records. A routine stores all of its keys or, when it throws RunTimeError, none.

// The twelve keys that are written at exit.
void SaveDefaults(SettingsStore& store, const PageOptions& options, const MainOptions& main);

void SaveTitles(SettingsStore& store, const PageTitleOptions& options);
void SaveMETA(SettingsStore& store, const MetaOptions& options);
void SaveLinkToMain(SettingsStore& store, const LinkToMainOptions& options);
void SaveLCR(SettingsStore& store, int justification);
void SaveLinkBackSize(SettingsStore& store, int size);
void SaveBackImage(SettingsStore& store, const BackgroundOptions& options);
void SaveWaterMark(SettingsStore& store, const BackgroundOptions& options);
void SaveDefaultHyperlinkColors(SettingsStore& store, const EffectsOptions& options);

}  // namespace folionet
