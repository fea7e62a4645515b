#include "ui/resultactions.h"

#include "app/text.h"
#include "core/media/metadata.h"
#include "ui/dialogs/imagecomparedialog.h"
#include "ui/locations/locationspage.h"
#include "ui/results/resultspage.h"
#include "ui/window/prompts.h"

namespace Mirrix {

namespace {

/// Size and time stay those of the scan, as the lists show them.
MirrixCore::FileEntry factsOf(const MirrixCore::FileEntry &file)
{
    MirrixCore::FileEntry facts = MirrixCore::MediaMetadata::readPreviewFacts(file.path);
    facts.size = file.size;
    facts.modifiedMs = file.modifiedMs;
    return facts;
}

} // namespace

ResultActions::ResultActions(ResultSet &results, ResultsPage &page, const LocationsPage &locations, Settings &settings,
                             Prompts &prompts, OperationsLog &log, QWidget *window)
    : QObject(window)
    , m_results(results)
    , m_page(page)
    , m_prompts(prompts)
    , m_window(window)
    , m_commands(results, settings, prompts, log, window)
{
    connect(&m_commands, &BatchCommands::marksReplaced, &page, &ResultsPage::marksReplaced);
    connect(&page, &ResultsPage::autoSelectRequested, this, [this, &locations] {
        m_commands.applyKeepRule(static_cast<KeepRule>(locations.state().advanced.keepRule));
    });
    connect(&page, &ResultsPage::selectAllRequested, &m_commands, &BatchCommands::selectAllDuplicates);
    connect(&page, &ResultsPage::invertRequested, &m_commands, &BatchCommands::invertSelection);
    connect(&page, &ResultsPage::backupRequested, &m_commands, &BatchCommands::moveCheckedToBackup);
    connect(&page, &ResultsPage::removeRequested, &m_commands, &BatchCommands::removeChecked);
    connect(&page, &ResultsPage::clearRequested, this, &ResultActions::clearRequested);
    connect(&page, &ResultsPage::compareRequested, this, &ResultActions::compareSelected);
    page.setFactsReader(factsOf);
}

void ResultActions::compareSelected()
{
    const auto selected = m_page.selectedFiles();
    const auto pathOf = [this](const QPair<qsizetype, qsizetype> &file) {
        return m_results.groups[file.first].files[file.second].path;
    };
    const bool comparable = selected.size() == 2 && selected[0].first == selected[1].first &&
                            isPicture(pathOf(selected[0])) && isPicture(pathOf(selected[1]));
    if (!comparable) {
        m_prompts.inform(m_window, Text::tr("提示"), Text::tr("请选中同一组内的两个图片文件进行对比。"));
        return;
    }
    ImageCompareDialog dialog(pathOf(selected[0]), pathOf(selected[1]), m_window);
    m_prompts.run(dialog);
}

} // namespace Mirrix
