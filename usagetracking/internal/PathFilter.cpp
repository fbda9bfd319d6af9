// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "internal/PathFilter.h"

#include <algorithm>
#include <utility>

#include <QStringBuilder>
#include <QStringView>

// What is masked: the text from the leftmost position from which the rest of it has the form
//
//     unit+ directory* last
//
//     unit        a word character or a slash, which a non-word character together with a colon or
//                 slash behind it may follow (as in "C:\" and "e://")
//     directory   any number of characters other than colon and slash, then a slash
//     last        one or more characters other than slash, then at most one slash, then the end
//
// A slash is / or \. A word character is "_" or a letter, number or mark in the sense of Unicode,
// each UTF-16 unit judged on its own, so that neither half of a surrogate pair is one. A non-word
// character is any other: slashes, colons and line ends too. As a QRegExp:
//
//     ((file|smb|[\w]|[\\\/])([^\w][\:\\\/])?)+([^\:\\\/]*[\\\/])*([^\\\/]+[\\\/]?)$
//
// ("file" and "smb" are four and three units anyway, so they add nothing.) That engine tries each
// position anew and needs some 15 s for 10,000 slashes. The same from the end, in one pass:
//
// 1. `last` ends at lastEnd: the end of the text or, if a slash stands there, in front of it. The
//    character before lastEnd must not be a slash, else no position has the form. `last` may begin
//    at any character of the run without slashes that ends at lastEnd.
// 2. In front of that run stands a slash or nothing. A stretch that ends in a slash is a row of
//    directories exactly if it holds no colon. So `directory* last` may begin at each position from
//    directoriesBegin, which is behind the last colon that stands in front of the run (or 0), up
//    to, and without, lastEnd; and nowhere else.
// 3. In there, a unit has what must follow it if any one position of that range is left behind it.
// 4. In front of directoriesBegin the form can only begin with units that lead there. A unit at p
//    does if either one, or `directory* last`, begins behind it: at p + 1, or at p + 3 if the unit
//    has its two followers. Three flags know that of p + 1, p + 2 and p + 3; once all are false, no
//    further unit can. The pass starts at directoriesBegin - 2, in front of the colon. There p + 1
//    is the colon, which begins no unit; p + 2 is in the range; and p + 3 is too whenever it
//    matters, since then the second follower, at p + 2, is a slash, and lastEnd - 1 is none.

namespace Plugin::UsageTracking::Internal {

namespace {

constexpr int nowhere = -1;

bool isSlash(QChar character)
{
    return character == QLatin1Char('/') || character == QLatin1Char('\\');
}

bool isWord(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character == QLatin1Char('_');
}

bool beginsUnit(QChar character)
{
    return isSlash(character) || isWord(character);
}

bool areFollowers(QChar first, QChar second)
{
    return (second == QLatin1Char(':') || isSlash(second)) && !isWord(first);
}

int findLastEnd(QStringView text)
{
    const int size = static_cast<int>(text.size());
    const int end = size > 0 && isSlash(text[size - 1]) ? size - 1 : size;
    return end > 0 && !isSlash(text[end - 1]) ? end : nowhere;
}

int findDirectoriesBegin(QStringView text, int lastEnd)
{
    int begin = lastEnd;
    while (begin > 0 && !isSlash(text[begin - 1])) {
        --begin;
    }
    while (begin > 0 && text[begin - 1] != QLatin1Char(':')) {
        --begin;
    }
    return begin;
}

int findUnitLeadingTo(QStringView text, int directoriesBegin)
{
    int leftmost = nowhere;
    bool next = false;
    bool second = true;
    bool third = true;
    for (int p = directoriesBegin - 2; p >= 0 && (next || second || third); --p) {
        const bool followed = next || (third && areFollowers(text[p + 1], text[p + 2]));
        const bool leads = followed && beginsUnit(text[p]);
        leftmost = leads ? p : leftmost;
        third = std::exchange(second, std::exchange(next, leads));
    }
    return leftmost;
}

int findFirstUnit(QStringView text, int begin, int end)
{
    const auto last = text.begin() + end;
    const auto found = std::find_if(text.begin() + begin, last, beginsUnit);
    return found == last ? nowhere : static_cast<int>(found - text.begin());
}

int findPath(QStringView text)
{
    const int lastEnd = findLastEnd(text);
    if (lastEnd == nowhere) {
        return nowhere;
    }
    const int directoriesBegin = findDirectoriesBegin(text, lastEnd);
    const int leading = findUnitLeadingTo(text, directoriesBegin);
    return leading != nowhere ? leading : findFirstUnit(text, directoriesBegin, lastEnd - 1);
}

} // namespace

QString maskPaths(const QString &text)
{
    const int path = findPath(text);
    if (path == nowhere) {
        return text;
    }
    return text.leftRef(path) % QLatin1String("***");
}

} // namespace Plugin::UsageTracking::Internal
