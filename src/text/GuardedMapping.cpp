// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GuardedMapping.h"

#include "text/FontLimits.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <mutex>

#include <sys/mman.h>
#include <unistd.h>

namespace lorva {

namespace {

/// Where our mappings lie, as the signal handler can read it: no locks, nothing that moves.
struct Slot
{
    static constexpr quintptr kFree = 0;
    static constexpr quintptr kTaken = 1;

    std::atomic<quintptr> begin = kFree;
    std::atomic<quintptr> end = 0;

    bool contains(quintptr address) const
    {
        const quintptr first = begin.load();
        if (first <= kTaken || address < first || address >= end.load())
            return false;
        return begin.load() == first; // not given to another mapping meanwhile
    }
};

std::array<Slot, kMaxMappings> slots;
struct sigaction previousAction;

/// Puts a page of zeros where the file has none.
bool patchPage(void *address)
{
    const auto pageSize = quintptr(::sysconf(_SC_PAGESIZE));
    char *const page =
        static_cast<char *>(address) - reinterpret_cast<quintptr>(address) % pageSize;
    return ::mmap(page, pageSize, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0)
        != MAP_FAILED;
}

void passOn(int signal, siginfo_t *info, void *context)
{
    if (previousAction.sa_flags & SA_SIGINFO)
        return previousAction.sa_sigaction(signal, info, context);
    if (previousAction.sa_handler != SIG_DFL && previousAction.sa_handler != SIG_IGN)
        return previousAction.sa_handler(signal);
    // The faulting instruction runs again, and the process ends as it would have without us. One
    // that was sent, not caused, does not come again.
    ::signal(signal, SIG_DFL);
    if (info->si_code <= 0)
        ::raise(signal);
}

void handleBusError(int signal, siginfo_t *info, void *context)
{
    const int error = errno;
    const auto address = reinterpret_cast<quintptr>(info->si_addr);
    bool isOurs = false;
    for (const Slot &slot : slots)
        isOurs = isOurs || slot.contains(address);
    if (info->si_code <= 0 || !isOurs || !patchPage(info->si_addr))
        passOn(signal, info, context);
    errno = error;
}

bool ensureHandler()
{
    static const bool isInstalled = [] {
        struct sigaction action = {};
        action.sa_sigaction = handleBusError;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
        sigemptyset(&action.sa_mask);
        return ::sigaction(SIGBUS, &action, &previousAction) == 0;
    }();
    return isInstalled;
}

int takeSlot()
{
    for (size_t i = 0; i < slots.size(); ++i) {
        quintptr expected = Slot::kFree;
        if (slots[i].begin.compare_exchange_strong(expected, Slot::kTaken))
            return int(i);
    }
    return -1;
}

} // namespace

std::unique_ptr<GuardedMapping> GuardedMapping::map(int fd, quint64 offset, quint32 length)
{
    if (length == 0 || !ensureHandler())
        return nullptr;
    std::unique_ptr<GuardedMapping> mapping(new GuardedMapping);
    mapping->m_slot = takeSlot();
    if (mapping->m_slot < 0)
        return nullptr;
    const quint64 inPage = offset % quint64(::sysconf(_SC_PAGESIZE));
    mapping->m_mappedLength = size_t(length) + size_t(inPage);
    void *const start = ::mmap(nullptr, mapping->m_mappedLength, PROT_READ, MAP_PRIVATE, fd,
                               off_t(offset - inPage));
    if (start == MAP_FAILED)
        return nullptr;
    mapping->m_start = start;
    mapping->m_data = static_cast<const char *>(start) + inPage;
    Slot &slot = slots[size_t(mapping->m_slot)];
    slot.end = reinterpret_cast<quintptr>(start) + mapping->m_mappedLength;
    slot.begin = reinterpret_cast<quintptr>(start);
    return mapping;
}

GuardedMapping::~GuardedMapping()
{
    // In this order: what others map here next is none of ours.
    if (m_slot >= 0)
        slots[size_t(m_slot)].begin = m_start ? Slot::kTaken : Slot::kFree;
    if (m_start)
        ::munmap(m_start, m_mappedLength);
    if (m_slot >= 0)
        slots[size_t(m_slot)].begin = Slot::kFree;
}

} // namespace lorva
