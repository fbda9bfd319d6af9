// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The session manager of a desktop as far as one program sees it. Prints its address, "client" when
// a program joins, then does what the lines of standard input say: "logout" asks the program to
// save itself for a log-out and prints "saved" or "cancelled"; "die" lets it end.

#include <poll.h>
#include <unistd.h>
#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

SmsConn program = nullptr;
std::vector<IceConn> connections;

void say(const char *line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

Status onRegister(SmsConn connection, SmPointer, char *previousId)
{
    if (previousId) {
        std::free(previousId);
        return 0; // it asks for a new one then
    }
    char *id = SmsGenerateClientID(connection);
    SmsRegisterClientReply(connection, id);
    std::free(id);
    SmsSaveYourself(connection, SmSaveLocal, False, SmInteractStyleNone, False);
    program = connection;
    return 1;
}

void onInteractRequest(SmsConn connection, SmPointer, int)
{
    SmsInteract(connection);
}

void onInteractDone(SmsConn connection, SmPointer, Bool isCancelled)
{
    if (isCancelled) {
        say("cancelled");
        SmsShutdownCancelled(connection);
    }
}

void onSaved(SmsConn connection, SmPointer, Bool)
{
    static bool isFirst = true;
    say(isFirst ? "client" : "saved");
    if (isFirst) {
        SmsSaveComplete(connection);
    }
    isFirst = false;
}

void onSaveRequest(SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}

void onPhase2(SmsConn connection, SmPointer)
{
    SmsSaveYourselfPhase2(connection);
}

void onClose(SmsConn connection, SmPointer, int count, char **reasons)
{
    SmFreeReasons(count, reasons);
    SmsCleanUp(connection);
    program = nullptr;
}

void onSetProperties(SmsConn, SmPointer, int, SmProp **) {}
void onDeleteProperties(SmsConn, SmPointer, int, char **) {}

void onGetProperties(SmsConn connection, SmPointer)
{
    SmsReturnProperties(connection, 0, nullptr);
}

Status onClient(SmsConn, SmPointer, unsigned long *mask, SmsCallbacks *callbacks, char **)
{
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask
            | SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask
            | SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask
            | SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    callbacks->register_client = {onRegister, nullptr};
    callbacks->interact_request = {onInteractRequest, nullptr};
    callbacks->interact_done = {onInteractDone, nullptr};
    callbacks->save_yourself_request = {onSaveRequest, nullptr};
    callbacks->save_yourself_phase2_request = {onPhase2, nullptr};
    callbacks->save_yourself_done = {onSaved, nullptr};
    callbacks->close_connection = {onClose, nullptr};
    callbacks->set_properties = {onSetProperties, nullptr};
    callbacks->delete_properties = {onDeleteProperties, nullptr};
    callbacks->get_properties = {onGetProperties, nullptr};
    return 1;
}

Bool isAnyoneWelcome(char *)
{
    return True;
}

void accept(IceListenObj listener)
{
    IceAcceptStatus status = IceAcceptFailure;
    IceConn connection = IceAcceptConnection(listener, &status);
    while (connection && IceConnectionStatus(connection) == IceConnectPending) {
        IceProcessMessages(connection, nullptr, nullptr);
    }
    if (connection && IceConnectionStatus(connection) == IceConnectAccepted) {
        connections.push_back(connection);
    }
}

// @return whether there is more to come.
bool obey()
{
    char line[80] = {};
    const ssize_t count = ::read(STDIN_FILENO, line, sizeof line - 1);
    if (count > 0 && program && std::strncmp(line, "logout", 6) == 0) {
        SmsSaveYourself(program, SmSaveBoth, True, SmInteractStyleAny, False);
    } else if (count > 0 && program && std::strncmp(line, "die", 3) == 0) {
        SmsDie(program);
    }
    return count > 0;
}

void process(std::size_t index)
{
    if (IceProcessMessages(connections[index], nullptr, nullptr) == IceProcessMessagesIOError) {
        IceCloseConnection(connections[index]);
        connections.erase(connections.begin() + std::ptrdiff_t(index));
    }
}

} // namespace

int main()
{
    IceSetIOErrorHandler([](IceConn) {});
    char error[256] = {};
    int count = 0;
    IceListenObj *listeners = nullptr;
    if (!SmsInitialize("Test", "1", onClient, nullptr, isAnyoneWelcome, sizeof error, error)
        || !IceListenForConnections(&count, &listeners, sizeof error, error)) {
        std::fprintf(stderr, "%s\n", error);
        return 1;
    }
    for (int i = 0; i < count; ++i) {
        IceSetHostBasedAuthProc(listeners[i], isAnyoneWelcome);
    }
    say(IceComposeNetworkIdList(count, listeners));
    for (;;) {
        std::vector<pollfd> waiting{{STDIN_FILENO, POLLIN, 0}};
        for (int i = 0; i < count; ++i) {
            waiting.push_back({IceGetListenConnectionNumber(listeners[i]), POLLIN, 0});
        }
        for (IceConn connection : connections) {
            waiting.push_back({IceConnectionNumber(connection), POLLIN, 0});
        }
        ::poll(waiting.data(), waiting.size(), -1);
        const std::size_t first = 1 + std::size_t(count);
        for (std::size_t i = waiting.size(); i-- > first;) {
            if (waiting[i].revents != 0) {
                process(i - first);
            }
        }
        for (int i = 0; i < count; ++i) {
            if (waiting[1 + std::size_t(i)].revents != 0) {
                accept(listeners[i]);
            }
        }
        if (waiting[0].revents != 0 && !obey()) {
            return 0;
        }
    }
}
