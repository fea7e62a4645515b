#pragma once

#include "core/model/scanoptions.h"

#include <QCommandLineParser>

namespace MirrixCli {

// Which files a command works on, as far as all that scan first have it in common.

/// Declares the options that choose files, and the folders.
void addSelectionOptions(QCommandLineParser &parser);

/// Overlays `options` with those. All paths become absolute, and folders to leave out must exist. Throws UsageError.
void readSelection(const QCommandLineParser &parser, MirrixCore::ScanOptions &options);

/// Takes the relative paths among the options against `base`, the current folder when that is empty. Throws UsageError
/// for an empty path.
void makeAbsolute(MirrixCore::ScanOptions &options, const QString &base = {});

} // namespace MirrixCli
