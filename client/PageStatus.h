#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

/// Follows what the current page says that it edits. A page tells it through a property "editedScheme" with a
/// notification signal and saves through a slot "OnSave()"; both are looked up by name, since the client
/// knows no page's class, and a page may have neither.
class PageStatus : public QObject
{
    Q_OBJECT

public:
    explicit PageStatus(QObject* parent = nullptr);
    ~PageStatus() override;

    void SetPage(QWidget* pPage); ///< null: no page
    QString Text() const;         ///< what the page edits; empty when it edits nothing or does not say
    bool CanSave() const;
    static bool CanSave(const QWidget* pPage); ///< whether a page, which may be null, has the slot
    bool Save();                               ///< false when the page cannot save

Q_SIGNALS:
    void SignalChanged();

private Q_SLOTS:
    void OnEditedSchemeChanged();

private:
    QPointer<QWidget> m_page;
};
