#pragma once

#include <QByteArray>
#include <QRandomGenerator>

/// Damages a database file in some of the ways in which disks and file transfers do: bytes and bits, pages
/// that are zero, random or in each other's place, a wrong head, an end that is missing or too long.
void DamageBytes(QByteArray& bytes, QRandomGenerator& random);
/// Cuts a file off anywhere.
void CutOff(QByteArray& bytes, QRandomGenerator& random);
