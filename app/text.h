#pragma once

#include <QCoreApplication>

namespace Mirrix {

/// Gives `tr` in the one context of all texts of the program. The source texts are Simplified Chinese; a text without a
/// translation is shown unchanged.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Mirrix)
};

} // namespace Mirrix
