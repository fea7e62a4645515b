#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace Mirrix {

/// Lays items out like words: as many in a line as fit, each at its preferred size.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    void setGeometry(const QRect &area) override;

private:
    /// Goes through the lines inside `area`, placing the items if asked; returns the height used.
    int arrange(const QRect &area, bool isPlacing) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace Mirrix
