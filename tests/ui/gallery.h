#pragma once

#include "actions/operationslog.h"
#include "app/settings.h"
#include "tests/ui/uitest.h"

#include <functional>
#include <memory>
#include <vector>

namespace MirrixUi {
class Mirrix;
} // namespace MirrixUi

namespace MirrixTest {

/// Every window of the program, filled from sample files that it makes itself: pictures and documents of one person
/// with their copies.
class Gallery
{
public:
    /// Opens the main window over the sample; `tweak` changes the settings first.
    explicit Gallery(const std::function<void(Settings &)> &tweak = {});
    ~Gallery();

    [[nodiscard]] MirrixUi::Mirrix &window() { return *m_window; }
    [[nodiscard]] ScriptedPrompts &prompts() { return m_prompts; }
    [[nodiscard]] QString sample(const QString &relative) const;

    /// Scans the sample; false when that does not end.
    [[nodiscard]] bool scan();

    /// Shows the pages of the main window one after the other, each tab of it, and lets `look` look at each.
    void visitPages(const std::function<void(const QString &name, QWidget &window)> &look);

    /// All dialogs, not yet shown, under their names. Those with pages come once a page.
    [[nodiscard]] std::vector<std::pair<QString, std::unique_ptr<QDialog>>> dialogs();

    /// visitPages and then each dialog, shown.
    void visitAll(const std::function<void(const QString &name, QWidget &window)> &look);

private:
    TempTree m_tree;
    Settings m_settings;
    OperationsLog m_log;
    ScriptedPrompts m_prompts;
    std::unique_ptr<MirrixUi::Mirrix> m_window;
};

} // namespace MirrixTest
