// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "SocketFilter.h"

#include <sys/socket.h>

namespace CameraPool {
namespace SocketFilter {
namespace {

// Where a program finds what: from the begin of the UDP header, and, below 0, of the IP header.
constexpr quint32 IpSource = quint32(SKF_NET_OFF) + 12;
constexpr quint32 UdpSource = 0;
constexpr quint32 Gvsp = 8;

// GigE Vision 2.0, chapter 25: the byte with the kind of the packet, and lengths in bytes.
constexpr quint32 KindByte = Gvsp + 4;
constexpr quint32 ExtendedFlag = 0x80;
enum Kind : quint32 { Leader = 1, Trailer = 2, Data = 3 };
constexpr quint32 ShortHeader = 8;
constexpr quint32 ExtendedHeader = 20;
constexpr quint32 SmallestLeader = 12; // what all kinds of payload have
constexpr quint32 ImageLeader = 36;
constexpr quint32 SmallestTrailer = 4;
constexpr quint32 PayloadTypeMask = 0x3fff;
enum PayloadType : quint32 { Image = 1, ExtendedChunkData = 5, LastInOnePiece = 9 };

constexpr quint32 TakeAll = 0xffffffff;

// A program that is written from top to bottom: what a test refuses is thrown away.
class CWriter
{
public:
    void loadByte(quint32 offset)
    {
        add(BPF_LD | BPF_B | BPF_ABS, offset);
    }
    void loadHalf(quint32 offset)
    {
        add(BPF_LD | BPF_H | BPF_ABS, offset);
    }
    void loadWord(quint32 offset)
    {
        add(BPF_LD | BPF_W | BPF_ABS, offset);
    }
    void loadSize()
    {
        add(BPF_LD | BPF_W | BPF_LEN, 0);
    }
    void mask(quint32 bits)
    {
        add(BPF_ALU | BPF_AND | BPF_K, bits);
    }
    void take()
    {
        add(BPF_RET | BPF_K, TakeAll);
    }
    void drop()
    {
        add(BPF_RET | BPF_K, 0);
    }

    void demandEqual(quint32 value)
    {
        demand(BPF_JEQ, value);
    }
    void demandAtLeast(quint32 value)
    {
        demand(BPF_JGE, value);
    }

    /// Writes what \a body writes, which is passed over unless the value loaded is \a value.
    template <class Body>
    void ifEqual(quint32 value, Body body)
    {
        const std::size_t test = m_program.size();
        add(BPF_JMP | BPF_JEQ | BPF_K, value);
        body();
        m_program[test].jf = quint8(m_program.size() - test - 1);
    }

    Program program() const
    {
        return m_program;
    }

private:
    void add(int code, quint32 value)
    {
        m_program.push_back({quint16(code), 0, 0, value});
    }
    void demand(int test, quint32 value)
    {
        m_program.push_back({quint16(BPF_JMP | test | BPF_K), 1, 0, value});
        drop();
    }

    Program m_program;
};

void writeSender(CWriter *writer, const Sender &sender)
{
    writer->loadWord(IpSource);
    writer->demandEqual(sender.address);
    if (sender.port != 0) {
        writer->loadHalf(UdpSource);
        writer->demandEqual(sender.port);
    }
}

void writeImageLeader(CWriter *writer, quint32 data)
{
    writer->loadSize();
    writer->demandAtLeast(data + ImageLeader);
    writer->take();
}

// The kinds of payload between the two with an image in their leader, and the others up to the last
// one that comes in one piece.
void writeLeader(CWriter *writer, quint32 data)
{
    writer->loadSize();
    writer->demandAtLeast(data + SmallestLeader);
    writer->loadHalf(data + 2);
    writer->mask(PayloadTypeMask);
    for (quint32 type = Image; type <= LastInOnePiece; ++type) {
        writer->ifEqual(type, [&] {
            if (type == Image || type == ExtendedChunkData) {
                writeImageLeader(writer, data);
            } else {
                writer->take();
            }
        });
    }
    writer->drop();
}

void writeSize(CWriter *writer, quint32 smallest)
{
    writer->loadSize();
    writer->demandAtLeast(smallest);
    writer->take();
}

} // namespace

Program from(const Sender &sender)
{
    CWriter writer;
    writeSender(&writer, sender);
    writer.take();
    return writer.program();
}

Program imagesFrom(const Sender &sender, FrameIds ids)
{
    const bool isExtended = ids == FrameIds::Extended;
    const quint32 data = Gvsp + (isExtended ? ExtendedHeader : ShortHeader);
    const quint32 flag = isExtended ? ExtendedFlag : 0;
    CWriter writer;
    writeSender(&writer, sender);
    writer.loadByte(KindByte);
    writer.ifEqual(flag | Leader, [&] { writeLeader(&writer, data); });
    writer.ifEqual(flag | Data, [&] { writeSize(&writer, data + 1); });
    writer.ifEqual(flag | Trailer, [&] { writeSize(&writer, data + SmallestTrailer); });
    writer.drop();
    return writer.program();
}

bool attach(int socket, const Program &program)
{
    sock_fprog filter = {};
    filter.len = quint16(program.size());
    filter.filter = const_cast<sock_filter *>(program.data());
    return ::setsockopt(socket, SOL_SOCKET, SO_ATTACH_FILTER, &filter, sizeof filter) == 0;
}

} // namespace SocketFilter
} // namespace CameraPool
