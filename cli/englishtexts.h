#pragma once

#include <QTranslator>

namespace MirrixCli {

/// The English texts of what actions tell of files, whose source texts are Chinese. The console speaks English,
/// whatever the language of the window.
class EnglishTexts : public QTranslator
{
public:
    [[nodiscard]] QString translate(const char *context, const char *source, const char *disambiguation,
                                    int count) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }
};

} // namespace MirrixCli
