// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FaultyCalls.h"
#include "platform/FontRegistrar.h"
#include "platform/Trash.h"

#include <atomic>
#include <memory>
#include <optional>

namespace lorva::test {

/// Holds a worker at one file, until the case has looked.
class Gate
{
public:
    /// The `file`th to come, from 0 on, is held.
    void hold(int file)
    {
        m_coming = file;
        m_isShut = true;
    }
    void open()
    {
        m_isShut = false;
        m_isShut.notify_all();
    }
    void pass()
    {
        if (m_coming.fetch_sub(1) == 0)
            m_isShut.wait(true);
    }

private:
    std::atomic<int> m_coming = -1;
    std::atomic<bool> m_isShut = false;
};

class GatedTrash final : public Trash
{
public:
    GatedTrash(std::shared_ptr<Trash> real, std::shared_ptr<Gate> gate)
        : m_real(std::move(real))
        , m_gate(std::move(gate))
    {
    }
    Result<FilePath> moveToTrash(const FilePath &file) override
    {
        m_gate->pass();
        return m_real->moveToTrash(file);
    }
    Result<void> takeFromTrash(const FilePath &place, const FilePath &destination) override
    {
        m_gate->pass();
        return m_real->takeFromTrash(place, destination);
    }

private:
    const std::shared_ptr<Trash> m_real;
    const std::shared_ptr<Gate> m_gate;
};

class GatedRegistrar final : public FontRegistrar
{
public:
    GatedRegistrar(std::shared_ptr<FontRegistrar> real, std::shared_ptr<Gate> gate)
        : m_real(std::move(real))
        , m_gate(std::move(gate))
    {
    }
    std::optional<FontManagerError> registerFont(const FilePath &file,
                                                 RegistrationScope scope) override
    {
        return m_real->registerFont(file, scope);
    }
    std::optional<FontManagerError> unregisterFont(const FilePath &file,
                                                   RegistrationScope scope) override
    {
        return m_real->unregisterFont(file, scope);
    }
    void registerFonts(const std::vector<FilePath> &files, const Progress &progress) override
    {
        m_real->registerFonts(files, gated(progress));
    }
    void unregisterFonts(const std::vector<FilePath> &files, const Progress &progress) override
    {
        m_real->unregisterFonts(files, gated(progress));
    }
    std::vector<FilePath> registeredFonts() const override { return m_real->registeredFonts(); }
    void announceChanges() override { m_real->announceChanges(); }

private:
    Progress gated(const Progress &progress)
    {
        return [this, progress](const std::vector<FontManagerError> &errors, bool isDone) {
            if (!isDone)
                m_gate->pass();
            return progress(errors, isDone);
        };
    }

    const std::shared_ptr<FontRegistrar> m_real;
    const std::shared_ptr<Gate> m_gate;
};

} // namespace lorva::test
