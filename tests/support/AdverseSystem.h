// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestHome.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva::test {

/// Permissions do not bind root, so the case acts as nobody meanwhile. The home of the test lets
/// everybody pass from then on.
class AsOrdinaryUser
{
public:
    AsOrdinaryUser()
        : m_isRoot(::geteuid() == 0)
    {
        ::chmod(TestHome::instance().root().c_str(), 0755);
        if (m_isRoot && ::seteuid(65534) != 0)
            ADD_FAILURE() << "cannot act as nobody";
    }
    ~AsOrdinaryUser()
    {
        if (m_isRoot && ::seteuid(0) != 0)
            ADD_FAILURE() << "cannot act as root again";
    }
    AsOrdinaryUser(const AsOrdinaryUser &) = delete;
    AsOrdinaryUser &operator=(const AsOrdinaryUser &) = delete;

private:
    const bool m_isRoot;
};

/// A limit on the size of files stands for the full disk: a larger write ends in the middle.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        ::signal(SIGXFSZ, SIG_IGN);
        limitTo(bytes);
    }
    ~FullDisk() { limitTo(RLIM_INFINITY); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    static void limitTo(rlim_t bytes)
    {
        const rlimit limit{bytes, RLIM_INFINITY};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
};

/// An empty folder of the running case's own.
inline FilePath makeCaseFolder()
{
    const auto *info = ::testing::UnitTest::GetInstance()->current_test_info();
    QByteArray name = QByteArray(info->test_suite_name()) + info->name();
    return TestHome::instance().makeFolder(name.replace('/', '-'));
}

} // namespace lorva::test
