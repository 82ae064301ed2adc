#include "ftp/FtpEngine.h"

#include "ftp/FtpTrust.h"
#include "platform/TextFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QHostAddress>
#include <QPointer>
#include <QStandardPaths>
#include <QCryptographicHash>
#include <QSslConfiguration>
#include <QSslSocket>
#include <tuple>
#include <unistd.h>


namespace {
using TextFiles::crlf;
const QString velloroTitle = QStringLiteral(":: Velloro 2002 ::");
}

int winsockErrorNumber(int socketError)
{
    switch (static_cast<QAbstractSocket::SocketError>(socketError)) {
    case QAbstractSocket::ConnectionRefusedError: return 10061;
    case QAbstractSocket::RemoteHostClosedError: return 10054;
    case QAbstractSocket::HostNotFoundError: return 11001;
    case QAbstractSocket::SocketAccessError: return 10013;
    case QAbstractSocket::SocketResourceError: return 10055;
    case QAbstractSocket::SocketTimeoutError: return 10060;
    case QAbstractSocket::NetworkError: return 10050;
    case QAbstractSocket::AddressInUseError: return 10048;
    case QAbstractSocket::SocketAddressNotAvailableError: return 10049;
    case QAbstractSocket::UnsupportedSocketOperationError: return 10045;
    default: return 10000;
    }
}

FtpEngine::FtpEngine(QObject* parent) : QObject(parent)
{
    makeControlSocket();
    makeDataSocket();
}

QSslSocket* FtpEngine::replaceSocket(QSslSocket* old, const QString& name)
{
    if (old) {
        old->disconnect(this);
        old->abort();
        old->deleteLater();
    }
    auto* fresh = new QSslSocket(this);
    fresh->setObjectName(name);
    return fresh;
}

void FtpEngine::makeControlSocket()
{
    control = replaceSocket(control, QStringLiteral("Winsock1"));
    connect(control, &QTcpSocket::readyRead, this, &FtpEngine::controlReadyRead);
    connect(control, &QTcpSocket::disconnected, this, &FtpEngine::controlClosed);
    connect(control, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError e) { controlError(e); });
    connect(control, &QSslSocket::newSessionTicketReceived, this, [this] { ticketsIssued = true; });
}

void FtpEngine::makeDataSocket()
{
    data = replaceSocket(data, QStringLiteral("Winsock2"));
    // A protected data connection is ready once its handshake is done, a plain one once connected.
    connect(data, &QSslSocket::connected, this, [this] {
        if (!protectData)
            dataConnected();
    });
    // The data connection must come from the server the user trusted: one showing another
    // certificate than the control connection's is someone else, and gets no file.
    connect(data, &QSslSocket::encrypted, this, [this] {
        if (data->peerCertificate() == control->peerCertificate())
            dataConnected();
        else
            dataFailed(winsockErrorNumber(QAbstractSocket::SslHandshakeFailedError),
                       QStringLiteral("The data connection showed a certificate other than the server's"));
    });
    // The last encrypted bytes leaving decide when an upload is over.
    connect(data, &QSslSocket::encryptedBytesWritten, this, [this](qint64) { pump(); });
    // A server that hands out session tickets sends one as each data connection's handshake
    // ends. Closing before it has come would answer it with a reset, and the server would lose
    // the file: an upload ends only once it is here.
    connect(data, &QSslSocket::newSessionTicketReceived, this, [this] {
        dataTicket = true;
        pump();
    });
    connect(data, &QTcpSocket::readyRead, this, &FtpEngine::dataReadyRead);
    connect(data, &QTcpSocket::disconnected, this, &FtpEngine::dataClosed);
    connect(data, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError e) { dataError(e); });
    connect(data, &QTcpSocket::bytesWritten, this, &FtpEngine::dataBytesWritten);
}

FtpEngine::~FtpEngine()
{
    // End every wait still on the stack and close both channels quietly.
    ++session;
    closingControl = quietData = true;
    control->abort();
    data->abort();
    download.reset();
    upload.reset();
}

bool FtpEngine::isConnected() const { return control->state() == QAbstractSocket::ConnectedState; }
bool FtpEngine::controlEncrypted() const { return control->isEncrypted(); }

QString FtpEngine::fingerprint(const QSslCertificate& certificate)
{
    const QByteArray hex = certificate.digest(QCryptographicHash::Sha256).toHex().toUpper();
    QStringList pairs;
    for (qsizetype i = 0; i + 1 < hex.size(); i += 2)
        pairs << QString::fromLatin1(hex.mid(i, 2));
    return pairs.join(QLatin1Char(':'));
}

QString FtpEngine::downloadFolder()
{
    const QString temp = qEnvironmentVariable("TEMP");
    if (!temp.isEmpty())
        return temp;
    // Without TEMP the shared temporary folder would let another user put a file or a link in
    // the download's place: a folder of the user's own inside it instead.
    const QString own = QDir::tempPath() + QStringLiteral("/velloro-") + QString::number(::getuid());
    QDir().mkdir(own, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    const QFileInfo info(own);
    if (info.isDir() && !info.isSymLink() && info.ownerId() == ::getuid())
        return own;
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
}

QString FtpEngine::downloadPath() { return downloadFolder() + QStringLiteral("/downme"); }

bool FtpEngine::waitUntil(const std::function<bool()>& done)
{
    const quint64 mine = session;
    QPointer<FtpEngine> self(this);
    ++waits;
    for (;;) {
        // A closed connection ends the wait before the condition is looked at again.
        if (session != mine) {
            --waits;
            return false;
        }
        if (done()) {
            --waits;
            return true;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (!self)  // the owner went away while we yielded
            return false;
    }
}

bool FtpEngine::FtpConnect(const QString& host, const QString& user, const QString& password)
{
    Q_EMIT busy(true);
    QPointer<FtpEngine> self(this);
    const auto done = [&](bool ok) {
        if (self)
            Q_EMIT busy(false);
        return ok;
    };
    FtpDisconnect();
    // A socket that has carried TLS starts the next connection as a new one: it would keep
    // the old session and its closing state.
    if (control->mode() != QSslSocket::UnencryptedMode)
        makeControlSocket();
    control->connectToHost(host, serverPort);
    const bool up = waitUntil([this] {
        Q_EMIT statusText(QStringLiteral("Connecting to Server ...."));
        return control->state() == QAbstractSocket::ConnectedState;
    });
    if (!up)
        return done(false);
    Q_EMIT controlConnected();
    // The name and the password go out only once the connection is as secure as asked.
    if (wanted != FtpSecurity::Plain && !secureControl(host))
        return done(false);

    qint16 result = 0;
    if (!FtpSendCommand(QStringLiteral("USER ") + user, result))
        return done(false);
    if (result == 0) {
        if (!FtpSendCommand(QStringLiteral("PASS ") + password, result))
            return done(false);
        if (result != 0) {
            // Never reached in practice: the wait above ends only on the awaited code.
            Q_EMIT message(QStringLiteral("PASS Error"), 16, QString());
            return done(false);
        }
    } else {
        Q_EMIT message(QStringLiteral("USER error"), 16, QString());
    }
    const bool in = waitUntil([this] { return replyCode == 230; });
    if (in && control->isEncrypted()) {
        if (!protectDataChannel())
            return done(false);
        replyCode = 230;  // left as a plain login leaves it
    }
    return done(in);
}

void FtpEngine::FtpDisconnect() { disconnectSteps(false); }

void FtpEngine::CutConnection() { disconnectSteps(true); }

void FtpEngine::disconnectSteps(bool withUpload)
{
    ++session;
    closingControl = true;
    control->abort();
    closingControl = false;
    protectData = false;
    awaitingFinal = false;
    ticketsIssued = false;
    closeData();
    // What a cut connection left half-received must not prefix the next server's banner, and
    // what the last command was waiting for must not steer the next connection's data.
    buffer.clear();
    tag1.clear();
    tag2.clear();
    replyCode = 0;
    Q_EMIT statusText(QStringLiteral("Disconnected from Server"));
    Q_EMIT serverDown(withUpload);
}

void FtpEngine::closeData(bool gracefully)
{
    uploading = false;
    upload.reset();
    uploadLeft = uploadUnsent = 0;
    download.reset();
    listing.clear();
    quietData = true;
    if (gracefully && data->isEncrypted())
        data->disconnectFromHost();  // the close notice tells the server the file is whole
    else
        data->abort();
}

bool FtpEngine::FtpSendCommand(const QString& command)
{
    qint16 result = 0;
    return FtpSendCommand(command, result);
}

bool FtpEngine::FtpSendCommand(const QString& command, qint16& result)
{
    if (control->state() != QAbstractSocket::ConnectedState) {
        Q_EMIT runtimeError(40006, QStringLiteral("Wrong protocol or connection state for the requested transaction or request"));
        return false;
    }
    control->write(TextFiles::encode(command + crlf));
    tag1 = FtpReply::verbOf(command);
    const FtpReply::VerbEntry entry = FtpReply::lookUp(tag1);
    if (!entry.dataTag.isEmpty())
        tag2 = entry.dataTag;
    if (entry.awaited != 0) {
        const auto outer = std::make_pair(awaitedCode, awaitedAlike);
        awaitedCode = entry.awaited;
        awaitedAlike = entry.alike;
        const bool done = waitUntil([this] { return isAwaited(replyCode); });
        std::tie(awaitedCode, awaitedAlike) = outer;
        if (!done)
            return false;
    }
    if (entry.second != 0 && replyCode == entry.second)
        result = entry.second;
    tag1.clear();
    replyCode = 0;
    return true;
}

void FtpEngine::controlReadyRead()
{
    Q_EMIT statusText(QStringLiteral("Connected to Server"));
    Q_EMIT serverUp();
    const QByteArray bytes = control->readAll();
    received = bytes.size();
    Q_EMIT controlDetails();
    for (const QString& line : buffer.append(bytes))
        handleLine(line);
}

bool FtpEngine::isAwaited(int code) const
{
    return code != 0 && (code == awaitedCode || (awaitedAlike != 0 && code == awaitedAlike));
}

void FtpEngine::handleLine(const QString& line)
{
    const qint16 code = FtpReply::replyCode(line);
    // A later line of the same arrival (a server's answer to a stray empty line, say) does not
    // hide the code a command is waiting for.
    if (!isAwaited(replyCode))
        replyCode = code;
    if (awaitingFinal && finalReply == 0 && (code == finalExpected || code >= 400)) {
        finalReply = code;
        finalLine = line;
    }
    if (code == 227) {
        const FtpReply::Passive p = FtpReply::parsePassive(line);
        if (p.ok) {
            closeData();
            data->abort();  // a TLS connection still sending its close notice goes now
            quietData = false;
            dataTicket = false;
            if (protectData) {
                // A socket of its own for every TLS connection: one that has been through a
                // TLS close would not send the close notice of the next. It resumes the
                // control connection's session, as servers require, so that nobody else can
                // take over the data connection.
                makeDataSocket();
                data->setSslConfiguration(control->sslConfiguration());
                data->connectToHostEncrypted(control->peerAddress().toString(), p.port, control->peerVerifyName());
            } else {
                data->connectToHost(control->peerAddress(), p.port);
            }
        } else {
            Q_EMIT runtimeError(p.errorNumber, p.errorDescription);
        }
    }
    Q_EMIT replyLine(line);
}

void FtpEngine::controlClosed()
{
    if (closingControl)
        return;
    disconnectSteps(true);
}

void FtpEngine::controlError(int socketError)
{
    // A remote close is the close event, not an error.
    if (closingControl)
        return;
    if (socketError == QAbstractSocket::RemoteHostClosedError) {
        if (control->isEncrypted())
            control->disconnectFromHost();
        return;
    }
    Q_EMIT message(QStringLiteral("Error: ") + QString::number(winsockErrorNumber(socketError)) + QStringLiteral("\r") +
                       control->errorString() + QStringLiteral(", Connection Will be cut off."),
                   0, QStringLiteral("Winsock1 Error:"));
    disconnectSteps(true);
}

void FtpEngine::dataConnected()
{
    if (tag2 == QLatin1String("RETR") && !download && !QFileInfo(downloadPath()).isSymLink()) {
        download = std::make_unique<QFile>(downloadPath());
        // Opened for writing without truncation: a shorter download leaves the tail of a longer one.
        if (!download->open(QIODevice::ReadWrite))
            download.reset();
    }
    pump();
}

void FtpEngine::dataReadyRead()
{
    const QByteArray bytes = data->readAll();
    if (quietData)
        return;
    if (tag2 == QLatin1String("LIST")) {
        // A character cut by the end of one arrival is finished by the next.
        Q_EMIT listingData(listing.append(bytes));
    } else if (tag2 == QLatin1String("RETR")) {
        if (!download)
            dataConnected();
        if (download)
            download->write(bytes);
    }
}

void FtpEngine::dataClosed()
{
    if (quietData)
        return;
    if (data->bytesAvailable() > 0)
        dataReadyRead();
    const bool wasRetrieve = tag2 == QLatin1String("RETR");
    if (wasRetrieve)
        download.reset();
    if (tag2 == QLatin1String("LIST"))
        if (const QString rest = listing.finish(); !rest.isEmpty())
            Q_EMIT listingData(rest);
    tag2.clear();
    closeData();
    if (wasRetrieve)
        Q_EMIT retrieved(downloadFolder());
}

void FtpEngine::dataError(int socketError)
{
    if (quietData)
        return;
    if (socketError == QAbstractSocket::RemoteHostClosedError) {
        // A TLS close notice leaves the connection open below it: closing our side too
        // raises the close event that a plain close raises by itself.
        if (data->isEncrypted())
            data->disconnectFromHost();
        return;
    }
    dataFailed(winsockErrorNumber(socketError), data->errorString());
}

void FtpEngine::dataFailed(int number, const QString& description)
{
    uploading = false;
    Q_EMIT message(QStringLiteral("Error: ") + QString::number(number) + QStringLiteral("\r") + description +
                       QStringLiteral(", Connection Will be cut off."),
                   0, QStringLiteral("Winsock2 Error:"));
    Q_EMIT Winsock2Error(number, description);
    closeData();
}

void FtpEngine::SendFile(const QString& source, const QString& remoteName)
{
    // The queue asks for the next file from inside the wait of the one before (on its
    // SendComplete). Running it right there would stack one wait on another for every file of
    // a long queue; it is kept instead and sent by the running call as soon as that call's
    // 226 has come, so the stack stays flat and the next file's commands follow the 226.
    if (sending) {
        deferred = {source, remoteName};
        deferredSession = session;
        hasDeferred = true;
        return;
    }
    sending = true;
    QPointer<FtpEngine> self(this);
    QString src = source;
    QString remote = remoteName;
    for (;;) {
        sendOne(src, remote);
        if (!self)
            return;
        if (!hasDeferred || deferredSession != session)
            break;
        hasDeferred = false;
        src = deferred.first;
        remote = deferred.second;
    }
    hasDeferred = false;
    sending = false;
}

namespace {
// A name goes on one command line: a line break in it would start a command of its own.
QString withoutLineBreaks(QString name)
{
    name.remove(QLatin1Char('\r'));
    name.remove(QLatin1Char('\n'));
    return name;
}
}

void FtpEngine::sendOne(const QString& source, const QString& remoteName)
{
    if (source.isEmpty()) {
        Q_EMIT message(QStringLiteral("File Needed!!"), 0, QString());
        return;
    }
    if (!FtpSendCommand(QStringLiteral("TYPE I")) || !FtpSendCommand(QStringLiteral("PASV")) ||
        !FtpSendCommand(QStringLiteral("STOR ") + withoutLineBreaks(remoteName)))
        return;
    // The file is read piece by piece as the socket drains; one that cannot be read is sent
    // as what could be read of it: nothing.
    upload = std::make_unique<QFile>(source);
    const qint64 size = upload->open(QIODevice::ReadOnly) ? upload->size() : 0;
    uploadLeft = uploadUnsent = size;
    uploading = true;
    pump();
    waitUntil([this] { return replyCode == 226; });
}

void FtpEngine::pump()
{
    if (!uploading || data->state() != QAbstractSocket::ConnectedState || (protectData && !data->isEncrypted()))
        return;
    // Over TLS the bytes already encrypted wait in a buffer of their own: both count.
    while (uploadLeft > 0 && data->bytesToWrite() + data->encryptedBytesToWrite() < bufferLimit) {
        const qint64 want = std::min(chunkSize, uploadLeft);
        QByteArray piece(want, Qt::Uninitialized);
        const qint64 got = upload->read(piece.data(), want);
        if (got <= 0) {  // the file shrank or failed: what was read is all there is
            uploadUnsent -= uploadLeft;
            uploadLeft = 0;
            break;
        }
        if (got < want)
            piece.truncate(got);
        uploadLeft -= got;
        data->write(piece);
    }
    const bool ticketIn = !protectData || !ticketsIssued || dataTicket || data->sessionProtocol() != QSsl::TlsV1_3;
    if (uploadLeft == 0 && data->bytesToWrite() == 0 && data->encryptedBytesToWrite() == 0 && ticketIn)
        finishUpload();
}

void FtpEngine::dataBytesWritten(qint64 n)
{
    if (!uploading)
        return;
    uploadUnsent -= n;
    Q_EMIT SendProgress(n, uploadUnsent);
    pump();
}

void FtpEngine::finishUpload()
{
    uploading = false;
    upload.reset();
    // Raised from the event loop rather than from inside the socket's own signal: the next
    // file reuses this socket, and a socket does not report writes from within its own report.
    const quint64 mine = session;
    QMetaObject::invokeMethod(
        this,
        [this, mine] {
            if (session != mine)
                return;
            closeData(true);
            Q_EMIT SendComplete();
        },
        Qt::QueuedConnection);
}

void FtpEngine::ViewFiles()
{
    if (FtpSendCommand(QStringLiteral("PASV")))
        FtpSendCommand(QStringLiteral("LIST"));
}

void FtpEngine::Retrieve(const QString& commandText)
{
    if (FtpSendCommand(QStringLiteral("PASV")))
        FtpSendCommand(commandText);
}

int FtpEngine::askFinal(const QString& command, int expected)
{
    control->write(TextFiles::encode(command + crlf));
    tag1 = FtpReply::verbOf(command);
    awaitingFinal = true;
    finalExpected = expected;
    finalReply = 0;
    finalLine.clear();
    const bool done = waitUntil([this] { return finalReply != 0; });
    awaitingFinal = false;
    tag1.clear();
    replyCode = 0;
    return done ? finalReply : 0;
}

void FtpEngine::refuse(const QString& text)
{
    FtpDisconnect();
    Q_EMIT message(text, 16, velloroTitle);
}

bool FtpEngine::secureControl(const QString& host)
{
    const int answer = askFinal(QStringLiteral("AUTH TLS"), 234);
    if (answer == 0)
        return false;
    if (answer != 234) {
        if (wanted == FtpSecurity::IfOffered)
            return true;
        refuse(QStringLiteral("The server ") + host + QStringLiteral(" does not offer a secure connection; it answered:\r") +
               finalLine + QStringLiteral("\r\rThis connection asks for TLS, so it has been cut and your user name and "
                                         "password were not sent."));
        return false;
    }
    QSslConfiguration c = control->sslConfiguration();
    // The certificate is judged below, before anything of the user's is sent; the session is
    // kept so the data connections can resume it.
    c.setPeerVerifyMode(QSslSocket::VerifyNone);
    c.setSslOption(QSsl::SslOptionDisableSessionPersistence, false);
    control->setSslConfiguration(c);
    control->setPeerVerifyName(host);
    control->startClientEncryption();
    if (!waitUntil([this] { return control->isEncrypted(); }))
        return false;
    return certificateAccepted(host);
}

bool FtpEngine::certificateAccepted(const QString& host)
{
    const QList<QSslCertificate> chain = control->peerCertificateChain();
    if (chain.isEmpty()) {
        refuse(QStringLiteral("The server ") + host + QStringLiteral(" showed no certificate. The connection has been cut and your "
                                                                     "password was not sent."));
        return false;
    }
    const QList<QSslError> problems = QSslCertificate::verify(chain, host);
    if (problems.isEmpty())
        return true;  // a certificate the system vouches for
    const QString shown = fingerprint(chain.first());
    const FtpTrust::Entry known = FtpTrust::lookUp(host);
    if (known.answer == FtpTrust::Answer::Trusted && known.fingerprint == shown)
        return true;
    if (known.answer == FtpTrust::Answer::Trusted) {
        refuse(QStringLiteral("The certificate of ") + host + QStringLiteral(" has changed since you trusted it.\r\rTrusted:\r") +
               known.fingerprint + QStringLiteral("\rNow shown:\r") + shown +
               QStringLiteral("\r\rSomeone may be listening in. The connection has been cut and your password was not sent. If the "
                              "server's owner confirms the new certificate, remove the line of ") +
               host + QStringLiteral(" from ") + QDir::toNativeSeparators(FtpTrust::path()) + QStringLiteral(" and connect again."));
        return false;
    }
    if (known.answer == FtpTrust::Answer::Refused && known.fingerprint == shown) {
        refuse(QStringLiteral("You refused this certificate of ") + host + QStringLiteral(" before:\r") + shown +
               QStringLiteral("\r\rThe connection has been cut and your password was not sent. To be asked again, remove the line of ") +
               host + QStringLiteral(" from ") + QDir::toNativeSeparators(FtpTrust::path()) + QStringLiteral("."));
        return false;
    }
    const QString question = QStringLiteral("The server ") + host +
                             QStringLiteral(" shows a certificate that this computer cannot check (") + problems.first().errorString() +
                             QStringLiteral(").\r\rSHA-256 fingerprint:\r") + shown +
                             QStringLiteral("\r\rCompare it with the one your host gave you. Trust this certificate for ") + host +
                             QStringLiteral("? Your answer is remembered.");
    QPointer<FtpEngine> self(this);
    const quint64 mine = session;
    const bool yes = askTrust && askTrust(question);
    // The question ran a loop of its own: the connection may have been cut meanwhile.
    if (!self || session != mine)
        return false;
    FtpTrust::remember(host, yes ? FtpTrust::Answer::Trusted : FtpTrust::Answer::Refused, shown);
    if (!yes) {
        FtpDisconnect();
        return false;
    }
    return true;
}

bool FtpEngine::protectDataChannel()
{
    const int size = askFinal(QStringLiteral("PBSZ 0"), 200);
    const int prot = size == 200 ? askFinal(QStringLiteral("PROT P"), 200) : size;
    if (prot == 0)
        return false;
    if (prot == 200) {
        protectData = true;
        return true;
    }
    if (wanted == FtpSecurity::IfOffered)
        return true;  // the files go in the clear; the password did not
    refuse(QStringLiteral("The server ") + control->peerVerifyName() +
           QStringLiteral(" would not protect the transfers of files; it answered:\r") + finalLine +
           QStringLiteral("\r\rThis connection asks for TLS, so it has been cut."));
    return false;
}
