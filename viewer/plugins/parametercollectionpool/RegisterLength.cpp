// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "RegisterLength.h"

namespace ParameterCollectionPool {
namespace {

// Tables of corrections have some hundred thousand bytes.
constexpr guint64 longestRegister = 1024 * 1024;

} // namespace

int registerLength(const CNodeAccess &access)
{
    const guint64 length = access.call([&](GError **error) {
        return arv_gc_register_get_length(ARV_GC_REGISTER(access.node()), error);
    });
    if (length > longestRegister) {
        access.refuse(QStringLiteral("the camera says that it has %1 bytes, and at most %2 are "
                                     "read: use a program of the camera's maker for it")
                          .arg(length)
                          .arg(longestRegister));
    }
    return int(length);
}

} // namespace ParameterCollectionPool
