#pragma once

#include "app/settings.h"
#include "core/model/scanoptions.h"
#include "ui/state/rulesstate.h"

namespace Mirrix {

/// The rules page of a new run: what the settings keep of the last scan, and the page's defaults. Sizes that are no
/// whole MB widen the range. A stored list of extensions that is exactly the mode's is shown as "the mode's own". The
/// kept similarity threshold is not read: every scan writes it, also those of modes without a similarity level.
[[nodiscard]] RulesState rulesStateFrom(const Settings &settings);

/// Takes over what the settings keep of a scan's options, those of the locations page included. Does not save.
void storeRules(const MirrixCore::ScanOptions &options, Settings &settings);

} // namespace Mirrix
