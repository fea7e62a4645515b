#pragma once

#include "actions/export/exporter.h"
#include "ui/state/resultset.h"

class QWidget;

namespace Mirrix {

class OperationsLog;
class Prompts;

/// Lets the user choose an export, runs it off the interface thread under a progress dialog and reports the
/// outcome; the log gets a record of what was written. `parent` is the parent of all boxes, `modeName` what the window
/// calls the mode of the scan. Returns when everything is over; the results and marks are taken as they are when the
/// user has chosen.
void exportResults(QWidget *parent, const ResultSet &results, const QString &modeName, Prompts &prompts,
                   OperationsLog &log);

} // namespace Mirrix
