// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDebug>
#include <QString>

#include <concepts>
#include <ostream>

/// How GoogleTest shows a Qt value: as QDebug does, instead of its bytes. Found through the
/// argument's own (global) namespace.
template <class T>
requires requires(QDebug debug, const T &value)
{
    {
        debug << value
        } -> std::convertible_to<QDebug>;
}
void PrintTo(const T &value, std::ostream *out)
{
    QString text;
    QDebug(&text).nospace() << value;
    *out << text.toStdString();
}
