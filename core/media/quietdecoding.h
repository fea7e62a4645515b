#pragma once

namespace MirrixCore {

/// While one lives, what the thread it was made on writes to standard error is dropped: the picture libraries complain
/// there about every broken file. The output of other threads is not touched, except on Windows, where the C library's
/// stderr ends for good with the first one. May be nested.
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
/// QuietDecoding::isActive. Where writers cannot be distinguished all of it is dropped from then on.
void filterCStandardError();

} // namespace MirrixCore
