#pragma once

#include "app/settings.h"
#include "ui/state/locationsstate.h"

#include <QJsonArray>

namespace Mirrix {

/// One object per row: "path", "enabled", "protected", "subfolders", "find", "showRemaining".
[[nodiscard]] QJsonArray jsonFromLocations(const QList<LocationRow> &rows);

/// The rows that `json` holds, in its order. A member that is missing or of the wrong type or range gives the row's
/// default; what is no object, has no path or names a folder a second time is left out.
[[nodiscard]] QList<LocationRow> locationsFromJson(const QJsonArray &json);

/// What the locations page shows when the program starts. Settings that know only the folders last scanned give a
/// row with the default switches for each.
[[nodiscard]] LocationsState locationsStateFrom(const Settings &settings);

/// Puts the page's state into the settings (in memory); `lastRoots` becomes the paths of the enabled rows.
void storeLocations(const LocationsState &state, Settings &settings);

} // namespace Mirrix
