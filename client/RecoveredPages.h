#pragma once

#include <QStringList>

class PageTabs;

/// Which pages come back at the next start. The host asks every page that stands in a tab for its recovery
/// record; one that answers comes back, the one in front last, so that it is in front again.
namespace RecoveredPages {

/// Keys of the modules whose pages gave a record. Pages answer only while the host's state is
/// QSystem::StateClosing.
QStringList Ask(const PageTabs& tabs);

} // namespace RecoveredPages
