#pragma once

#include "ui/batchcommands.h"

#include <QObject>

namespace Mirrix {

class LocationsPage;
class ResultsPage;

/// Joins the results page to the commands that its buttons and menus ask for.
class ResultActions : public QObject
{
    Q_OBJECT

public:
    /// Keeps references to everything; `window`, which owns it, is the parent of all boxes.
    ResultActions(ResultSet &results, ResultsPage &page, const LocationsPage &locations, Settings &settings,
                  Prompts &prompts, OperationsLog &log, QWidget *window);

    [[nodiscard]] BatchCommands &commands() { return m_commands; }

signals:
    /// The user wants to clear the results.
    void clearRequested();

private:
    void compareSelected();

    ResultSet &m_results;
    ResultsPage &m_page;
    Prompts &m_prompts;
    QWidget *m_window;
    BatchCommands m_commands;
};

} // namespace Mirrix
