#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

/// Follows what the current page says: what it edits, by a property "editedScheme", and how many schemes are
/// switched on, by "enabledSchemes", both with a notification signal. A page may tell neither.
class PageStatus : public QObject
{
    Q_OBJECT

public:
    explicit PageStatus(QObject* parent = nullptr);
    ~PageStatus() override;

    void SetPage(QWidget* pPage); ///< null: no page
    QString Text() const;         ///< what the page edits; empty when it edits nothing or does not say
    int EnabledSchemes() const;   ///< -1 when the page does not say
    bool CanSave() const;
    bool Save(); ///< false when the page cannot save

Q_SIGNALS:
    void SignalChanged();

private Q_SLOTS:
    void OnChanged();

private:
    QPointer<QWidget> m_page;
};
