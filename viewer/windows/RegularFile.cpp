// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/RegularFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <QCoreApplication>
#include <QFile>

namespace Windows {

namespace {

bool isRegular(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

// Without waiting for whoever writes into a pipe.
int openAtOnce(const QString &name)
{
    return ::open(QFile::encodeName(name).constData(),
                  O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

} // namespace

// Asked of what is open, so that nothing else can take the place of the file meanwhile.
QString openRegular(QFile &file)
{
    const int descriptor = openAtOnce(file.fileName());
    if (descriptor < 0) {
        return qt_error_string(errno);
    }
    if (!isRegular(descriptor)) {
        ::close(descriptor);
        return QCoreApplication::translate("Windows::RegularFile", "It is not a file of its own");
    }
    const bool isOpen = file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    return isOpen ? QString() : file.errorString();
}

} // namespace Windows
