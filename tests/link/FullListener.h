// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVector>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Velmora::Tests {

/// A port whose queue is full and never emptied: an attempt to connect there neither succeeds nor fails, as
/// with a host that drops every packet.
class FullListener final
{
public:
    FullListener(const char* address, quint16 port)
    {
        sockaddr_in where{};
        where.sin_family = AF_INET;
        where.sin_port = htons(port);
        inet_pton(AF_INET, address, &where.sin_addr);
        const auto* name = reinterpret_cast<const sockaddr*>(&where);
        const int listener = open();
        const int on = 1;
        setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        m_listens = bind(listener, name, sizeof where) == 0 && listen(listener, 0) == 0;
        for (int i = 0; i < connectionsToFillIt; ++i)
            static_cast<void>(::connect(open(), name, sizeof where)); // none of them ends
    }
    ~FullListener()
    {
        for (const int handle : qAsConst(m_handles))
            close(handle);
    }
    Q_DISABLE_COPY_MOVE(FullListener)

    [[nodiscard]] bool listens() const { return m_listens; }

private:
    static constexpr int connectionsToFillIt = 3;

    int open()
    {
        m_handles.append(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0));
        return m_handles.constLast();
    }

    QVector<int> m_handles;
    bool m_listens = false;
};

} // namespace Velmora::Tests
