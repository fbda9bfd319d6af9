// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Address.h"
#include "CCamera.h"
#include "CCommandInput.h"
#include "CDescriptionFile.h"
#include "Commands.h"
#include "Description.h"
#include "Options.h"

#include <glib-unix.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace {

using namespace Simulator;

constexpr int Failure = 1;
constexpr int BadUsage = 2;

// One line, at once: whoever started the program waits for it.
void say(FILE *stream, const std::string &line)
{
    std::fprintf(stream, "%s\n", line.c_str());
    std::fflush(stream);
}

int complain(const std::exception &error, int status)
{
    say(stderr, std::string("nerix-camera-simulator: ") + error.what());
    return status;
}

gboolean onEndSignal(gpointer loop)
{
    g_main_loop_quit(static_cast<GMainLoop *>(loop));
    return G_SOURCE_CONTINUE;
}

// Answering somebody who left is no reason to end; nor is a command line typed for another program
// while this one runs in the background of a terminal.
void ignoreSignals()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGTTIN, SIG_IGN);
}

std::string readyLine(const Options &options)
{
    return "ready: " + options.identity.vendor + ' ' + options.identity.model + " at "
           + options.address + ", serial " + options.identity.serial;
}

int serve(const Options &options)
{
    requireConfigured(options.address);
    const CDescriptionFile file(description(options.featureCount));
    CCamera camera(options.address, options.identity, file.path());
    camera.setLoss(options.loss);

    const std::unique_ptr<GMainLoop, void (*)(GMainLoop *)> loop(g_main_loop_new(nullptr, FALSE),
                                                                 g_main_loop_unref);
    g_unix_signal_add(SIGINT, onEndSignal, loop.get());
    g_unix_signal_add(SIGTERM, onEndSignal, loop.get());
    const CCommandInput input(STDIN_FILENO, [&](const std::string &line) {
        if (!g_main_loop_is_running(loop.get())) {
            return; // lines after quit
        }
        const Answer answer = execute(line, camera);
        say(stdout, answer.text);
        if (answer.quit) {
            g_main_loop_quit(loop.get());
        }
    });

    camera.plugIn();
    say(stdout, readyLine(options));
    g_main_loop_run(loop.get());
    return 0;
}

int run(const Options &options)
{
    if (options.help) {
        std::fputs(helpText().c_str(), stdout);
        return 0;
    }
    if (options.version) {
        say(stdout, "nerix-camera-simulator " SIMULATOR_VERSION);
        return 0;
    }
    return serve(options);
}

} // namespace

int main(int argc, char **argv)
{
    ignoreSignals();
    try {
        return run(parsedOptions({argv + 1, argv + argc}));
    } catch (const std::invalid_argument &error) {
        return complain(error, BadUsage);
    } catch (const std::exception &error) {
        return complain(error, Failure);
    }
}
