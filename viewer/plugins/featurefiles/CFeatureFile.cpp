// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/CFeatureFile.h"

#include "windows/RegularFile.h"
#include "windows/WrittenFile.h"

#include <ParameterCollection/CParameterException.h>

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace FeatureFiles {

using ParameterCollection::CParameterException;
using ParameterCollection::IParameterCollection;
namespace FeatureStream = ParameterCollectionPool::FeatureStream;

namespace {

// Far above what a camera has, far below what hurts: somebody may pick a video.
constexpr qint64 largestFile = 16 * 1024 * 1024;

const QString cameraTree = QStringLiteral("@CameraDevice");

// What a camera that was lost meanwhile did not tell is missing in its stream, which is no reason
// to replace a file. Of such a camera every feature is unavailable, and each throws the reason.
void throwIfGone(const IParameterCollection &parameters)
{
    const auto all = parameters.parameters();
    const bool isThere = std::any_of(all.begin(), all.end(), [](const auto &parameter) {
        return parameter->fullName().startsWith(cameraTree) && !parameter->isUnavailable();
    });
    if (!isThere && !all.isEmpty()) {
        all.first()->valueText();
    }
}

} // namespace

CFeatureFile::CFeatureFile(const QString &fileName)
    : m_fileName(fileName)
{}

void CFeatureFile::save(const IParameterCollection &parameters,
                        const std::function<bool()> &isWanted) const
{
    const QByteArray text = parameters.featureStream(cameraTree).toUtf8();
    throwIfGone(parameters);
    if (!isWanted()) {
        return;
    }
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()
        || !Windows::isWritten(file) || !file.commit()) {
        throw CParameterException(
            tr("file %1 cannot be written: %2; choose another folder")
                .arg(QDir::toNativeSeparators(m_fileName), file.errorString()));
    }
}

CLoadReport CFeatureFile::load(const IParameterCollection &parameters,
                               const CFeatureLoader::Progress &progress) const
{
    const QString text = read();
    QVector<FeatureStream::Line> lines;
    try {
        lines = FeatureStream::parse(text);
    } catch (const CParameterException &exception) {
        throw CParameterException(
            tr("file %1 holds no features: %2")
                .arg(QDir::toNativeSeparators(m_fileName), exception.message()));
    }
    return CFeatureLoader(parameters, lines).load(progress);
}

QString CFeatureFile::read() const
{
    QFile file(m_fileName);
    const QString problem = Windows::openRegular(file);
    if (!problem.isEmpty()) {
        throw CParameterException(tr("file %1 cannot be read: %2; choose another file")
                                      .arg(QDir::toNativeSeparators(m_fileName), problem));
    }
    QByteArray text = file.read(largestFile);
    // An editor may have changed the line ends; within a value they are written as letters.
    text.replace("\r\n", "\n");
    return QString::fromUtf8(text);
}

} // namespace FeatureFiles
