#pragma once

#include <QString>

/// A text from outside for a message: short, and without what a terminal would act on.
QString ShownText(const QString& strText);
