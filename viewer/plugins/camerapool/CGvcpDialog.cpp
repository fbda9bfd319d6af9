// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGvcpDialog.h"

#include "GvcpMessage.h"

namespace CameraPool {

CGvcpDialog::CGvcpDialog(CFoundCamera *camera)
    : m_camera(camera)
    , m_socket(camera->openId)
{
    ask(Stage::Discovery);
}

void CGvcpDialog::ask(Stage stage)
{
    m_stage = stage;
    m_requestId = CGvcpSocket::nextRequestId();
    sendQuestion();
}

void CGvcpDialog::sendQuestion()
{
    const QByteArray question = m_stage == Stage::Discovery
                                    ? GvcpMessage::discovery(m_requestId)
                                    : GvcpMessage::readControlPrivilege(m_requestId);
    if (!m_socket.send(question)) {
        m_stage = Stage::Over;
    }
}

// Skips what is no answer to this request, such as a late answer to an earlier one.
void CGvcpDialog::takeAnswer()
{
    const auto datagram = m_socket.receive();
    if (!datagram) {
        m_stage = Stage::Over;
    } else if (GvcpMessage::requestId(*datagram) != m_requestId) {
        return;
    } else if (m_stage == Stage::Discovery
               && GvcpMessage::parseDiscoveryAnswer(*datagram, m_requestId, m_camera)) {
        m_camera->isNameKnown = true;
        ask(Stage::Privilege);
    } else {
        m_camera->isControlKnown =
            m_stage == Stage::Privilege
            && GvcpMessage::parsePrivilegeAnswer(*datagram, m_requestId, m_camera);
        m_stage = Stage::Over;
    }
}

} // namespace CameraPool
