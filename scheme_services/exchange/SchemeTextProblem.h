#pragma once

#include <QString>

/// Something that keeps a text of schemes from being taken over.
struct SchemeTextProblem
{
    int iLine = 0;     ///< from 1; 0 when it is about no line
    QString strReason; ///< translated, in lower case and without a full stop
};
