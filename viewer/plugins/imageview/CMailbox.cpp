// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CMailbox.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>

namespace ImageView {

namespace {

void count(QVector<CMailbox::Failure> &failures, const QString &text)
{
    const auto found = std::find_if(failures.begin(), failures.end(),
                                    [&text](const auto &failure) { return failure.text == text; });
    CMailbox::Failure failure{text, 1};
    if (found != failures.end()) {
        failure.count += found->count;
        failures.erase(found);
    }
    failures.append(failure);
}

} // namespace

CMailbox::CMailbox(std::function<void(const QString &identity)> tell)
    : m_tell(std::move(tell))
{}

void CMailbox::put(const QString &identity, const Nerix::CGrabResultPtr &result)
{
    Nerix::CGrabResultPtr former; // is freed after the lock is
    const QString failed = result->GrabSucceeded() ? QString() : failureText(*result);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_isClosed) {
        return;
    }
    Slot &slot = m_slots[identity];
    if (result->GrabSucceeded()) {
        former = std::exchange(slot.news.image, result);
        slot.news.time = now;
    } else {
        count(slot.news.failures, failed);
    }
    if (std::exchange(slot.isEmpty, false) && m_tell) {
        m_tell(identity);
    }
}

CMailbox::News CMailbox::take(const QString &identity)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto slot = m_slots.find(identity);
    if (slot == m_slots.end()) {
        return {};
    }
    slot->isEmpty = true;
    return std::exchange(slot->news, {});
}

void CMailbox::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isClosed = true;
    m_slots.clear();
}

QString failureText(const Nerix::CGrabResultData &result)
{
    const QString text = QString::fromUtf8(result.GetErrorDescription().c_str()).simplified();
    if (!text.isEmpty()) {
        return text;
    }
    return QCoreApplication::translate("ImageView::Failure", "The image failed with the code %1.")
        .arg(QStringLiteral("0x%1").arg(result.GetErrorCode(), 8, 16, QLatin1Char('0')));
}

} // namespace ImageView
