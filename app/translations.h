#pragma once

#include <QString>

namespace Mirrix {

/// Shows the program, and Qt's own texts, in the language `code` (see languagecodes.h; what is unknown becomes the
/// source language). A catalogue that cannot be found leaves the source texts. Returns the code in effect. All widgets
/// are notified through QEvent::LanguageChange. Needs the application object; interface thread only.
QString loadLanguage(const QString &code);

} // namespace Mirrix
