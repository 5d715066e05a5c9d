#include <QObject>
#include <QtPlugin>

// A sound Qt plug-in, but one that offers nothing the client knows.
class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Foreign")
};

#include "ForeignPlugin.moc"
