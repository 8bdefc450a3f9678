#pragma once

#include <QByteArray>

/// One packet of the protocol between a MySQL client and its server.
struct MySqlPacket {
    quint8 sequence = 0;
    QByteArray payload;

    bool isError() const { return payload.startsWith('\xff'); }
    /// The number in an error packet.
    int errorNumber() const;
    /// The end of a list of columns or rows.
    bool isEnd() const { return payload.startsWith('\xfe') && payload.size() < 9; }

    static MySqlPacket error(quint8 sequence, int number, const QByteArray &sqlState,
                             const QByteArray &text);
};

/// One end of a connected stream socket, closed with the object. Both operations return false once
/// the other side is gone.
class MySqlWire {
public:
    /// Takes over \a descriptor, which may be -1.
    explicit MySqlWire(int descriptor);
    ~MySqlWire();
    MySqlWire(const MySqlWire &) = delete;
    MySqlWire &operator=(const MySqlWire &) = delete;

    /// Connects to a socket in the file system; not connected when nobody listens there.
    static int connectTo(const QByteArray &path);

    bool isConnected() const { return m_descriptor >= 0; }
    bool read(MySqlPacket &packet);
    bool write(const MySqlPacket &packet);
    /// Reads whatever comes and answers nothing, until the other side is gone.
    void swallow();
    void close();

private:
    bool readBytes(char *bytes, int count);

    int m_descriptor;
};

/// What a client asks its server to do, once it is logged in.
struct MySqlCommand {
    enum Code : quint8 {
        Quit = 0x01,
        UseDatabase = 0x02,
        Query = 0x03,
        Prepare = 0x16,
        Execute = 0x17,
        CloseStatement = 0x19,
        ResetStatement = 0x1a,
    };

    explicit MySqlCommand(const MySqlPacket &packet);

    /// False for the commands that a server does not answer.
    bool hasAnswer() const { return code != Quit && code != CloseStatement; }

    quint8 code;
    QByteArray text; ///< of a Query or Prepare
};

/// Reads a whole answer from the server and passes it to \a client packet by packet, or drops it
/// when \a client is null. \a first gets the first packet. False when the server is gone.
bool passAnswer(const MySqlCommand &command, MySqlWire &server, MySqlWire *client,
                MySqlPacket &first);
