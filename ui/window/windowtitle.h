#pragma once

#include "app/text.h"

namespace Mirrix {

/// The product's name and what it is for, in the current language.
[[nodiscard]] inline QString productTitle()
{
    return Text::tr("Mirrix · 重复文件查找与清理");
}

} // namespace Mirrix
