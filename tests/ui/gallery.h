#pragma once

#include "actions/records/operationslog.h"
#include "app/settings.h"
#include "tests/ui/uitest.h"

#include <functional>
#include <memory>
#include <vector>

namespace MirrixUi {
class Mirrix;
} // namespace MirrixUi

namespace MirrixTest {

/// Shows each box to a visitor before it answers from the script.
class SeenPrompts : public ScriptedPrompts
{
public:
    std::function<void(QWidget &box)> look; ///< nothing is shown without

    bool ask(QWidget *parent, const QString &title, const QString &text, const QString &below) override;
    bool informWithAction(QWidget *parent, const QString &title, const QString &text, const QString &below,
                          const QString &action) override;
    qsizetype choose(QWidget *parent, const ChoiceRequest &request) override;

private:
    void see(const std::function<void()> &show) const;

    DialogPrompts m_shown;
};

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

    /// Cleans, restores and undoes on the sample, and shows the boxes that come with that.
    void visitQuestions(const std::function<void(const QString &name, QWidget &window)> &look);

    /// visitPages, then each dialog, shown, and visitQuestions.
    void visitAll(const std::function<void(const QString &name, QWidget &window)> &look);

private:
    TempTree m_tree;
    Settings m_settings;
    OperationsLog m_log;
    SeenPrompts m_prompts;
    std::unique_ptr<MirrixUi::Mirrix> m_window;
};

} // namespace MirrixTest
