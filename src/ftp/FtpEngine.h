#pragma once
#include "ftp/FtpProfiles.h"
#include "ftp/FtpReply.h"

#include <QFile>
#include <QObject>
#include <QPair>
#include <QSslSocket>
#include <QString>
#include <functional>
#include <memory>


// The program's own FTP client on two sockets: Winsock1 carries the commands and replies,
// Winsock2 the passive data connection. It has no window; the upload and advanced windows are
// views that listen to its signals and press its commands.
//
// Every wait yields to the event loop until its reply code has come, with no time-out. A wait
// also ends, unsatisfied, as soon as the control connection closes or is cut, so that cutting
// the connection always frees the user and no wait is left spinning below another.
class FtpEngine : public QObject {
    Q_OBJECT
public:
    explicit FtpEngine(QObject* parent = nullptr);
    ~FtpEngine() override;

    // The server's port: 21 for the program; tests point it elsewhere.
    void setPort(quint16 port) { serverPort = port; }
    quint16 port() const { return serverPort; }

    // TLS on the control connection (AUTH TLS) and on the data connections (PBSZ 0, PROT P).
    // Plain, the default, sends what it always sent.
    void setSecurity(FtpSecurity s) { wanted = s; }
    FtpSecurity security() const { return wanted; }
    bool controlEncrypted() const;
    bool dataProtected() const { return protectData; }
    // Asked (through the windows' message box) when a server shows a certificate the system
    // cannot check and no answer for the host is remembered: the text of the question, true to
    // trust it. Without one such a certificate is refused.
    void setTrustQuestion(std::function<bool(const QString&)> question) { askTrust = std::move(question); }
    // SHA-256 of the certificate, as colon-separated upper-case hex pairs.
    static QString fingerprint(const QSslCertificate& certificate);

    // Logs in: returns once the server has sent 230, or false when the wait was ended by the
    // connection closing.
    bool FtpConnect(const QString& host, const QString& user, const QString& password);
    void FtpDisconnect();
    // Sends one command line and waits for its awaited code. False when the wait was ended by
    // the connection closing.
    bool FtpSendCommand(const QString& command, qint16& result);
    bool FtpSendCommand(const QString& command);

    // "View Files": PASV, then LIST; the listing comes through listingData.
    void ViewFiles();
    // "Retrieve": PASV, then the command text as the user wrote it; the bytes go to TEMP/downme.
    void Retrieve(const QString& commandText);
    // "Send File": TYPE I, PASV, STOR of the remote name, then the file's bytes, streamed from
    // disk; waits for 226.
    void SendFile(const QString& source, const QString& remoteName);
    // "Cut Connection": the disconnect steps, leaving the upload button enabled.
    void CutConnection();
    // The disconnect steps that the control connection's close event and the windows share.
    // withUpload says whether the upload button comes back enabled.
    void disconnectSteps(bool withUpload);
    // Closes the data connection without raising its close event; gracefully lets a TLS
    // connection send its close notice and its last bytes first.
    void closeData(bool gracefully = false);

    qint16 ReplyCode() const { return replyCode; }
    QString controlTag() const { return tag1; }
    QString dataTag() const { return tag2; }
    QTcpSocket* Winsock1() const { return control; }
    QTcpSocket* Winsock2() const { return data; }
    bool isConnected() const;
    // Waits still running (tests: none is left after a cut).
    int activeWaits() const { return waits; }
    // Bytes of the last arrival on the control channel.
    qint64 bytesReceived() const { return received; }

    // The file a download goes to: TEMP/downme.
    // Where a download goes: the folder named by TEMP, else a folder of the user's own in the
    // temporary folder.
    static QString downloadFolder();
    static QString downloadPath();

    // How the file being sent is cut: the size of a piece read from disk, and how many bytes
    // may wait in the socket's buffer before the next piece is read.
    static constexpr qint64 chunkSize = 1 << 20;
    static constexpr qint64 bufferLimit = 4 << 20;

Q_SIGNALS:
    // A download has arrived in this folder (the windows show it in the file manager).
    void retrieved(const QString& folder);
    // Panel 2 of the upload window's status bar.
    void statusText(const QString& text);
    // Control data arrived: the server is up (green shape, disconnect and upload buttons on).
    void serverUp();
    // The disconnect steps ran: log and listing cleared, red shape, disconnect button off;
    // withUpload re-enables the upload button.
    void serverDown(bool withUpload);
    // One complete reply line, to be appended to the log.
    void replyLine(const QString& line);
    // Arrival on the data channel while it carries a listing.
    void listingData(const QString& text);
    // A message box: text, style, title.
    void message(const QString& text, int style, const QString& title);
    // A failure nobody traps (a malformed passive reply): the run-time error box.
    void runtimeError(int number, const QString& description);
    // Busy pointer on (true) and off.
    void busy(bool on);
    void SendProgress(qint64 bytesSent, qint64 bytesRemaining);
    // All bytes of the file are written and the data channel is closed; the queue moves on.
    void SendComplete();
    // The data channel failed (after its message): the queue skips the file.
    void Winsock2Error(int number, const QString& description);
    // The control channel's details changed (addresses, ports, bytes received).
    void controlDetails();
    // The control connection is up (the disconnect button comes on).
    void controlConnected();

private:
    bool waitUntil(const std::function<bool()>& done);
    void controlReadyRead();
    void controlClosed();
    void controlError(int socketError);
    void handleLine(const QString& line);
    void dataConnected();
    void dataReadyRead();
    void dataClosed();
    void dataError(int socketError);
    void dataBytesWritten(qint64 n);
    void sendOne(const QString& source, const QString& remoteName);
    void pump();
    void finishUpload();
    void makeDataSocket();
    void makeControlSocket();
    // A new socket under the name, the old one (if any) closed and let go.
    QSslSocket* replaceSocket(QSslSocket* old, const QString& name);
    int askFinal(const QString& command, int expected);
    bool secureControl(const QString& host);
    bool certificateAccepted(const QString& host);
    bool protectDataChannel();
    void dataFailed(int number, const QString& description);
    void refuse(const QString& text);

    QSslSocket* control = nullptr;
    QSslSocket* data = nullptr;
    FtpSecurity wanted = FtpSecurity::Plain;
    std::function<bool(const QString&)> askTrust;
    // PROT P is in force: every data connection is TLS, resuming the control's session.
    bool protectData = false;
    // The server sends TLS session tickets; the current data connection's has come.
    bool ticketsIssued = false;
    bool dataTicket = false;
    // The final reply a set-up command (AUTH, PBSZ, PROT) is waiting for.
    bool awaitingFinal = false;
    int finalExpected = 0;
    int finalReply = 0;
    QString finalLine;
    quint16 serverPort = 21;
    FtpReply::Buffer buffer;
    qint16 replyCode = 0;
    // The codes the innermost waiting command ends on.
    int awaitedCode = 0;
    int awaitedAlike = 0;
    bool isAwaited(int code) const;
    QString tag1;
    QString tag2;
    FtpReply::Listing listing;
    // Rises on every disconnect: a wait that began in an older session is over.
    quint64 session = 0;
    int waits = 0;
    qint64 received = 0;
    // Our own closes raise no close event: for the data connection, until the next one starts
    // (a TLS data connection closes in its own time, after its close notice).
    bool closingControl = false;
    bool quietData = false;

    std::unique_ptr<QFile> download;
    std::unique_ptr<QFile> upload;
    qint64 uploadLeft = 0;      // bytes not yet read from disk
    qint64 uploadUnsent = 0;    // bytes not yet written to the wire
    bool uploading = false;
    // A send asked for while another runs, taken up when that one ends.
    bool sending = false;
    bool hasDeferred = false;
    QPair<QString, QString> deferred;
    quint64 deferredSession = 0;
};

// Winsock's number for a socket error.
int winsockErrorNumber(int socketError);
