// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CSeedAtBirth.h"

#include <arv.h>
#include <dlfcn.h>

namespace Simulator {

namespace {

thread_local const CSeedAtBirth::Function *t_function = nullptr;

} // namespace

CSeedAtBirth::CSeedAtBirth(const Function &function)
{
    t_function = &function;
}

CSeedAtBirth::~CSeedAtBirth()
{
    t_function = nullptr;
}

} // namespace Simulator

// Takes the place of Aravis' own function of that name for the library's calls, too: the program's
// symbols go before those of its libraries.
ArvFakeCamera *arv_fake_camera_new_full(const char *serial_number, const char *genicam_filename)
{
    using Original = ArvFakeCamera *(*)(const char *, const char *);
    static const auto original =
        reinterpret_cast<Original>(dlsym(RTLD_NEXT, "arv_fake_camera_new_full"));
    ArvFakeCamera *camera = original(serial_number, genicam_filename);
    if (Simulator::t_function) {
        (*Simulator::t_function)(camera);
    }
    return camera;
}
