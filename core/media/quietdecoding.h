#pragma once

namespace MirrixCore {

/// While one lives, what the thread it was made on writes to the C library's standard error is dropped: the picture
/// libraries complain there about every broken file. Other threads' words are not touched. May be nested.
class QuietDecoding
{
public:
    QuietDecoding();
    ~QuietDecoding();
    QuietDecoding(const QuietDecoding &) = delete;
    QuietDecoding &operator=(const QuietDecoding &) = delete;
};

} // namespace MirrixCore
