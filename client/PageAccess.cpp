#include "client/PageAccess.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QVariant>
#include <QWidget>

namespace {

bool Offers(const QWidget* pPage, const char* szSignature)
{
    return pPage != nullptr && pPage->metaObject()->indexOfMethod(szSignature) >= 0;
}

} // namespace

namespace PageAccess {

bool CanSave(const QWidget* pPage)
{
    return pPage != nullptr && pPage->metaObject()->indexOfSlot("OnSave()") >= 0;
}

bool Save(QWidget* pPage)
{
    return CanSave(pPage) && Call(pPage, "OnSave");
}

void MarkUnsaved(QWidget* pPage)
{
    Call(pPage, "MarkUnsaved");
}

void SaveEnded(QWidget* pPage, bool bStored, bool bMore)
{
    if (Offers(pPage, "SaveEnded(bool,bool)")) {
        QMetaObject::invokeMethod(pPage, "SaveEnded", Qt::DirectConnection, Q_ARG(bool, bStored),
                                  Q_ARG(bool, bMore));
    }
}

bool OffersDraft(const QWidget* pPage)
{
    return Offers(pPage, "Draft()") && Offers(pPage, "RestoreDraft(QByteArray)");
}

QByteArray Draft(QWidget* pPage)
{
    QByteArray draft;
    if (!OffersDraft(pPage) ||
        !QMetaObject::invokeMethod(pPage, "Draft", Qt::DirectConnection, Q_RETURN_ARG(QByteArray, draft))) {
        return {};
    }
    return draft;
}

int DraftSchemes(QWidget* pPage, const QByteArray& draft)
{
    int iSchemes = -1;
    if (!Offers(pPage, "DraftSchemes(QByteArray)") ||
        !QMetaObject::invokeMethod(pPage, "DraftSchemes", Qt::DirectConnection, Q_RETURN_ARG(int, iSchemes),
                                   Q_ARG(QByteArray, draft))) {
        return -1;
    }
    return iSchemes;
}

int RestoreDraft(QWidget* pPage, const QByteArray& draft)
{
    int iSchemes = -1;
    if (!OffersDraft(pPage) ||
        !QMetaObject::invokeMethod(pPage, "RestoreDraft", Qt::DirectConnection, Q_RETURN_ARG(int, iSchemes),
                                   Q_ARG(QByteArray, draft))) {
        return -1;
    }
    return iSchemes;
}

int IntProperty(const QWidget* pPage, const char* szName, int iOtherwise)
{
    const QVariant value = pPage == nullptr ? QVariant() : pPage->property(szName);
    return value.canConvert<int>() ? value.toInt() : iOtherwise;
}

bool BoolProperty(const QWidget* pPage, const char* szName)
{
    return pPage != nullptr && pPage->property(szName).toBool();
}

QString TextProperty(const QWidget* pPage, const char* szName)
{
    return pPage == nullptr ? QString() : pPage->property(szName).toString();
}

bool Call(QWidget* pPage, const char* szName)
{
    const QByteArray signature = QMetaObject::normalizedSignature(QByteArray(szName) + "()");
    return Offers(pPage, signature.constData()) &&
           QMetaObject::invokeMethod(pPage, szName, Qt::DirectConnection);
}

void Follow(QWidget* pPage, const char* szProperty, QObject* pReceiver, const char* szSlot)
{
    const QMetaObject* const pMeta = pPage->metaObject();
    const int iProperty = pMeta->indexOfProperty(szProperty);
    if (iProperty >= 0 && pMeta->property(iProperty).hasNotifySignal()) {
        QMetaObject::connect(pPage, pMeta->property(iProperty).notifySignalIndex(), pReceiver,
                             pReceiver->metaObject()->indexOfSlot(szSlot));
    }
}

} // namespace PageAccess
