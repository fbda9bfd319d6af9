// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featurefiles/CFeatureLoader.h"

#include <functional>

#include <QCoreApplication>
#include <QString>

namespace FeatureFiles {

/// A file that holds the features of a camera as text, a line each; see
/// `ParameterCollectionPool::FeatureStream` for its form. Its operations ask the device, so they
/// are not for the GUI thread.
class CFeatureFile
{
    Q_DECLARE_TR_FUNCTIONS(FeatureFiles::CFeatureFile)

public:
    explicit CFeatureFile(const QString &fileName);

    /// Writes every value that can be read. A file that is there is replaced once everything is
    /// written; it stays as it is if that fails or the camera is gone. \a isWanted is asked before
    /// the file is touched.
    /// @throws ParameterCollection::CParameterException with the reason and the remedy.
    void save(
        const ParameterCollection::IParameterCollection &parameters,
        const std::function<bool()> &isWanted = [] { return true; }) const;

    /// Sets the features to what the file says.
    /// @throws ParameterCollection::CParameterException if the file cannot be read or is none of
    /// ours; nothing is set then.
    CLoadReport load(const ParameterCollection::IParameterCollection &parameters,
                     const CFeatureLoader::Progress &progress = {}) const;

private:
    QString read() const;

    const QString m_fileName;
};

} // namespace FeatureFiles
