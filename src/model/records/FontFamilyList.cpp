// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/FontFamilyList.h"

#include "base/RunThen.h"
#include "platform/FreeMemory.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace lorva {

namespace {

/// Below this a list is freed where it is let go of.
constexpr size_t kSmallLibrary = 500;

} // namespace

FontFamilyList makeFamilyList(std::vector<FontFamilyRecord> families)
{
    using Families = const std::vector<FontFamilyRecord>;
    return {new Families(std::move(families)), [](Families *list) {
                if (list->size() <= kSmallLibrary || !QCoreApplication::instance()) {
                    delete list;
                    return;
                }
                detail::passOrder();
                QThreadPool::globalInstance()->start([list] {
                    detail::passOrder();
                    delete list;
                    returnFreeMemory();
                });
            }};
}

} // namespace lorva
