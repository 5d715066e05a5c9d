#pragma once

#include "scheme_services/site/SiteProblem.h"

#include <QByteArrayList>
#include <QVector>

#include <functional>

/// Text with separated values, as spreadsheets write it: quotes around cells that hold the separator, line
/// ends or quotes, quotes doubled within; any line ends; blank lines count for nothing.
namespace CsvText {

/// More cells than this in a row are counted and not kept.
constexpr int MostCells = 64;

struct Row
{
    int iLine = 0; ///< on which the row begins, from 1
    QByteArrayList cells;
    int iCells = 0; ///< how many it has, also beyond those kept
};

/// Hands the rows over one by one until `take` answers false. False with the problem when a quotation mark
/// stands where none may or is not closed; the rows before it have been handed over then.
bool Read(const QByteArray& text, char cSeparator, const std::function<bool(const Row&)>& take,
          SiteProblem& problem);
/// One cell in quotation marks, its own doubled.
QByteArray Quoted(const QByteArray& cell);

} // namespace CsvText
