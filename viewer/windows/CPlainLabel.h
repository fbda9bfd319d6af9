// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace Windows {

/// A label that shows every text as it is, as `shownText` does: a QLabel would take what looks like
/// HTML for it, and read the files that it names. All labels of the viewer are such ones. GUI
/// thread.
class CPlainLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CPlainLabel(QWidget *parent = nullptr);
    explicit CPlainLabel(const QString &text, QWidget *parent = nullptr);
    ~CPlainLabel() override;

    void setText(const QString &text);
};

} // namespace Windows
