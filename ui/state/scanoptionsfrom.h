#pragma once

#include "core/model/scanoptions.h"
#include "ui/state/locationsstate.h"
#include "ui/state/rulesstate.h"

namespace Mirrix {

/// The options of a scan as the pages of locations and rules are set. Only the tab of the chosen mode counts, the
/// general rules on names, sizes, dates and paths in every mode. Dates are taken in local time. Pure.
[[nodiscard]] MirrixCore::ScanOptions scanOptionsFrom(const LocationsState &locations, const RulesState &rules);

/// The greatest distance of image hashes that a similarity level (0 to 4) accepts; a level beyond counts as the
/// nearest.
[[nodiscard]] qint32 imageDistanceOf(qint32 similarityLevel);

} // namespace Mirrix
