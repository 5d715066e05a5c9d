#pragma once

#include "client/PluginLoader.h"

#include <QAbstractButton>

/// One module on the home page: icon, title and description; a click, Space or Return opens its page.
class PluginTile : public QAbstractButton
{
    Q_OBJECT

public:
    PluginTile(const PluginInfo& info, QWidget* parent);
    ~PluginTile() override;

    QString Key() const { return m_strKey; }
    QString Description() const { return m_strDescription; }
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QFont TitleFont() const;

    QString m_strKey;
    QString m_strDescription;
    QIcon m_icon;
    QIcon m_hoverIcon;
};
