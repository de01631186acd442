// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/PreferenceFile.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <utility>

namespace lorva {

Q_LOGGING_CATEGORY(preferenceFileLog, "lorva.platform.preferences", QtCriticalMsg)

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PreferenceFile)
};

/// A little less than the second after which whoever watches the file looks again.
constexpr std::chrono::milliseconds kPauseBetweenLooks{900};

/// One that has passed: waits for nobody.
constexpr QDeadlineTimer kNoWait;

} // namespace

PreferenceFile::PreferenceFile(FilePath folder, std::chrono::milliseconds patience)
    : m_folder(std::move(folder))
    , m_patience(patience)
{
    ensureWritable(usualDeadline());
    static_cast<void>(takeChangesElsewhere()); // nobody has read anything yet
}

/// Where the last wait was in vain, the next ones would be: a window that reads twenty values must
/// not wait twenty times.
QDeadlineTimer PreferenceFile::usualDeadline() const
{
    const bool isLocked = failure() && failure()->kind == ErrorKind::cancelled;
    return isLocked ? kNoWait : QDeadlineTimer(m_patience);
}

bool PreferenceFile::ensureWritable(QDeadlineTimer deadline)
{
    if (m_database && m_database->hasMoved()) {
        // First of all: its locks and its log have the names of the new file's.
        m_database.reset();
        m_isOther = true;
    }
    if (m_database && !m_database->whyReadOnly())
        return true;
    Result<PreferenceDatabase> opened = PreferenceDatabase::open(m_folder, deadline);
    if (opened && !opened->whyReadOnly())
        m_openFailure.reset();
    else
        noteFailure(m_openFailure, opened ? *opened->whyReadOnly() : opened.error());
    if (opened)
        take(std::move(*opened));
    if (m_openFailure)
        m_nextLook.setRemainingTime(kPauseBetweenLooks);
    return !m_openFailure;
}

void PreferenceFile::take(PreferenceDatabase database)
{
    const bool isStillReadOnly = m_database && database.whyReadOnly();
    m_isOther = m_isOther || !isStillReadOnly;
    m_database.emplace(std::move(database));
    m_dataVersion = m_database->dataVersion().value_or(QByteArray());
}

std::optional<PreferenceRow> PreferenceFile::read(const QString &key)
{
    if (!m_database)
        return m_known.value(key);
    if (!m_isInTransaction)
        m_database->setDeadline(usualDeadline());
    Result<std::optional<PreferenceRow>> row = m_database->read(key);
    if (!row) {
        noteFailure(m_readFailure, row.error());
        m_hasTransactionFailed = m_isInTransaction;
        m_missedKey = key;
        return m_known.value(key);
    }
    m_readFailure.reset();
    m_known.insert(key, *row);
    return *std::move(row);
}

std::map<QString, PreferenceRow> PreferenceFile::readAll()
{
    if (m_database) {
        m_database->setDeadline(usualDeadline());
        Result<std::map<QString, PreferenceRow>> rows = m_database->readAll();
        if (rows)
            return *std::move(rows);
        noteFailure(m_readFailure, rows.error());
    }
    std::map<QString, PreferenceRow> known;
    for (auto each = m_known.cbegin(); each != m_known.cend(); ++each) {
        if (*each)
            known.emplace(each.key(), **each);
    }
    return known;
}

bool PreferenceFile::begin(QDeadlineTimer deadline)
{
    if (!ensureWritable(deadline))
        return false;
    m_database->setDeadline(deadline);
    if (const Result<void> begun = m_database->begin(); !begun) {
        noteFailure(m_writeFailure, begun.error());
        return false;
    }
    m_isInTransaction = true;
    return true;
}

void PreferenceFile::write(const QString &key, const std::optional<PreferenceRow> &row)
{
    if (m_hasTransactionFailed)
        return;
    m_uncommitted.insert(key, row);
    if (const Result<void> written = m_database->write(key, row); !written) {
        noteFailure(m_writeFailure, written.error());
        m_hasTransactionFailed = true;
    }
}

bool PreferenceFile::commit()
{
    if (!m_hasTransactionFailed) {
        const Result<void> committed = m_database->commit();
        m_hasTransactionFailed = !committed;
        if (!committed)
            noteFailure(m_writeFailure, committed.error());
    }
    m_isInTransaction = false;
    const Values written = std::exchange(m_uncommitted, {});
    if (std::exchange(m_hasTransactionFailed, false)) {
        m_database->rollBack();
        closeIfDamaged();
        return false;
    }
    m_known.insert(written);
    m_readFailure.reset();
    m_writeFailure.reset();
    return true;
}

/// Opening it again finds out how damaged it is, and moves it aside.
void PreferenceFile::closeIfDamaged()
{
    for (const auto &failed : {m_readFailure, m_writeFailure}) {
        if (failed && failed->kind == ErrorKind::malformed)
            m_database.reset();
    }
}

/// A lock that goes without a write leaves no other trace.
bool PreferenceFile::readsMissedValue()
{
    if (!m_database || !m_missedKey)
        return false;
    const QString key = *std::exchange(m_missedKey, std::nullopt);
    read(key);
    return !m_missedKey;
}

bool PreferenceFile::takeChangesElsewhere()
{
    const bool isUsable = m_database && !m_database->whyReadOnly() && !m_database->hasMoved();
    // Trying makes and removes files, of which whoever watches the folder is told: not every time.
    m_isLookPutOff = !isUsable && !m_nextLook.hasExpired();
    if (!isUsable && !m_isLookPutOff)
        ensureWritable(kNoWait);
    m_isOther = readsMissedValue() || m_isOther;
    if (m_database) {
        m_database->setDeadline(kNoWait);
        const QByteArray version = m_database->dataVersion().value_or(m_dataVersion);
        m_isOther = m_isOther || version != m_dataVersion;
        m_dataVersion = version;
    }
    return std::exchange(m_isOther, false);
}

const std::optional<Error> &PreferenceFile::failure() const
{
    if (m_openFailure)
        return m_openFailure;
    return m_writeFailure ? m_writeFailure : m_readFailure;
}

void PreferenceFile::noteFailure(std::optional<Error> &place, const Error &error) const
{
    //: A file, and what is wrong with it.
    const Error located{error.kind, Texts::tr("%1: %2").arg(path().displayText(), error.detail)};
    if (place == located)
        return;
    place = located;
    qCWarning(preferenceFileLog).noquote()
        << "preferences cannot be read or written:" << located.detail;
}

} // namespace lorva
