#pragma once

namespace MirrixCore {

/// While one lives, what the thread it was made on writes to standard error is dropped: the picture libraries complain
/// there about every broken file. Other threads' words are not touched. May be nested.
class QuietDecoding
{
public:
    QuietDecoding();
    ~QuietDecoding();
    QuietDecoding(const QuietDecoding &) = delete;
    QuietDecoding &operator=(const QuietDecoding &) = delete;

    /// Whether one lives on this thread.
    [[nodiscard]] static bool isActive();
};

/// Puts a filter in front of the C library's standard error, once and for good, that drops what is written while
/// QuietDecoding::isActive. Does nothing where that is not possible.
void filterCStandardError();

} // namespace MirrixCore
