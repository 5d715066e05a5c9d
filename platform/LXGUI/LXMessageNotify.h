#pragma once

#include "lxgui_export.h"
#include "platform/LXGUI/LXSingleton.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class QWidget;

namespace LXGUI {

/// Transient notes: small panels that stack in a corner of the host's window, never take the focus, fade by
/// themselves and can be clicked away. At most four at a time: older ones leave, errors last. An empty text
/// is no note. User-interface thread only.
class LXGUI_EXPORT LXMessageNotify : public QObject
{
    Q_OBJECT

public:
    enum Level
    {
        Information,
        Success,
        Warning,
        Error
    };

    /// Shows a note. Errors stay until clicked away, others about six seconds. Without an anchor the note
    /// is only remembered.
    void AddTextNotification(const QString& strText);
    void AddTextNotification(const QString& strText, Level level);

    void SetAnchor(QWidget* pWindow); ///< the window over whose lower right corner notes appear; not owned
    QString GetLastText() const;      ///< text of the newest note, empty when there has been none
    QStringList GetVisibleTexts() const;
    /// Lets the notes with this text leave, when what they say holds no more; does nothing when there are
    /// none.
    void Withdraw(const QString& strText);
    void Clear();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void SignalNotificationAdded(const QString& strText, int iLevel);

private:
    friend class LXSingleton<LXMessageNotify>;
    LXMessageNotify();
    ~LXMessageNotify() override;
    class Private;
    std::unique_ptr<Private> d;
};

template <>
LXGUI_EXPORT LXMessageNotify* LXSingleton<LXMessageNotify>::Instance();

} // namespace LXGUI
