#include "core/media/quietdecoding.h"

#include <iostream>
#include <streambuf>

namespace MirrixCore {

namespace {

thread_local int quietDepth = 0;

/// Passes on to another buffer what is not to be dropped.
class FilterBuffer : public std::streambuf
{
public:
    explicit FilterBuffer(std::streambuf *target)
        : m_target(target)
    {}

protected:
    int_type overflow(int_type character) override
    {
        return QuietDecoding::isActive() ? traits_type::not_eof(character)
                                         : m_target->sputc(static_cast<char>(character));
    }

    std::streamsize xsputn(const char *text, std::streamsize length) override
    {
        return QuietDecoding::isActive() ? length : m_target->sputn(text, length);
    }

    int sync() override { return m_target->pubsync(); }

private:
    std::streambuf *m_target;
};

void filterStandardError()
{
    static const bool done = [] {
        // Never deleted: others may write until the very end.
        std::cerr.rdbuf(new FilterBuffer(std::cerr.rdbuf()));
        filterCStandardError();
        return true;
    }();
    static_cast<void>(done);
}

} // namespace

QuietDecoding::QuietDecoding()
{
    filterStandardError();
    ++quietDepth;
}

QuietDecoding::~QuietDecoding()
{
    --quietDepth;
}

bool QuietDecoding::isActive()
{
    return quietDepth > 0;
}

} // namespace MirrixCore
