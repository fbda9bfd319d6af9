// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Application {

/// The question whether to end the viewer without what hangs in it is asked by another process: the
/// windows of this one hang too, as does its way to the display, perhaps.

/// The words of that question about \a stuck, which does not end, in the user's language. \a
/// unsaved are plug-ins that come later and keep something then; it may be empty. GUI thread, while
/// the viewer still has its translations.
QStringList endQuestion(const QString &stuck, const QString &unsaved);

/// Asks \a question in a window, and returns when the user has answered. Where no window can be
/// shown, the answer is no. In any thread that has nothing better to do.
/// @return whether to end.
bool isEndWanted(const QStringList &question);

/// The other side: the option with which the viewer starts itself, followed by the question.
extern const char *const endQuestionOption;

/// Shows the window of \a question until the user has answered, or until standard input ends, since
/// the viewer has ended by itself then.
/// @return the exit status that `isEndWanted` understands.
int showEndQuestion(int &argc, char **argv, const QStringList &question);

} // namespace Application
