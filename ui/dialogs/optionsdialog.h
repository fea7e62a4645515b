#pragma once

#include <QDialog>
#include <QFutureWatcher>

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QVBoxLayout;

namespace Mirrix {

class Prompts;
struct Settings;

/// The preferences that are not rules of a scan. Every change is stored in the settings and saved at once.
class OptionsDialog : public QDialog
{
    Q_OBJECT

public:
    enum Page : int
    {
        General,
        Theme,
        About
    };

    /// Keeps references to `settings`, which it changes and saves, and to `prompts`.
    OptionsDialog(Settings &settings, Prompts &prompts, QWidget *parent = nullptr);

    void showPage(Page page);

signals:
    /// A new theme was stored.
    void themeChanged();

    /// A new algorithm was stored.
    void contentHashAlgorithmChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildGeneralPage();
    void buildThemePage();
    void addCacheSection(QVBoxLayout *column);
    void addPage(QWidget *page, QLabel *title, QVBoxLayout *column);
    void showSettings();
    void retranslate();

    void onPageChanged(int row);
    void onCloseActionChanged();
    void onBeepChanged(bool on);
    void onScanConfirmChanged(bool on);
    void onCompareChanged(bool on);
    void onContentHashAlgorithmChanged(int index);
    void onThemeSelected();
    void onClearImageCache();
    void onImageCacheCleared();

    Settings &m_settings;
    Prompts &m_prompts;
    QString m_cacheFolder;
    QFutureWatcher<bool> m_clearing;

    QListWidget *m_navigation;
    QStackedWidget *m_pages;
    QLabel *m_generalTitle;
    QLabel *m_closeTitle;
    QRadioButton *m_closeToTray;
    QRadioButton *m_closeExits;
    QLabel *m_scanTitle;
    QCheckBox *m_beep;
    QCheckBox *m_confirm;
    QLabel *m_confirmHint;
    QLabel *m_removalTitle;
    QCheckBox *m_compare;
    QLabel *m_hashTitle;
    QComboBox *m_hash;
    QLabel *m_hashHint;
    QLabel *m_cacheTitle;
    QLabel *m_cacheHint;
    QLabel *m_cachePath;
    QPushButton *m_clearCache;
    QLabel *m_themeTitle;
    QRadioButton *m_light;
    QRadioButton *m_dark;
    QLabel *m_themeHint;
};

} // namespace Mirrix
