#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

class AlarmSchemeStoreBackend;
class QLabel;
class QProgressBar;

/// Shows in the status bar how far a save has come. A save that is over within half a second shows nothing.
class SaveIndicator : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Patience = 500; ///< milliseconds before anything is shown
    static constexpr int Interval = 100; ///< milliseconds between two looks

    explicit SaveIndicator(QWidget* parent = nullptr);
    ~SaveIndicator() override;

    void Follow(AlarmSchemeStoreBackend* pStore);

private:
    void OnSavingChanged(bool bSaving);
    void OnLook();

    QPointer<AlarmSchemeStoreBackend> m_store;
    QTimer m_timer;
    QLabel* m_pText;
    QProgressBar* m_pBar;
};
