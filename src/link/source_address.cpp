#include "link/source_address.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QUrl>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(source_address)
};

struct Scheme
{
    const char *name;
    SourceKind kind;
};

constexpr Scheme kSchemes[] = {
    {"serial", SourceKind::Serial}, {"tcp", SourceKind::Tcp},   {"rfc2217", SourceKind::Rfc2217},
    {"udp", SourceKind::Udp},       {"file", SourceKind::File}, {"demo", SourceKind::Demo},
};

QString schemeName(SourceKind kind)
{
    for (const Scheme &scheme : kSchemes) {
        if (scheme.kind == kind)
            return QString::fromLatin1(scheme.name);
    }
    return {};
}

/// The length of the scheme in front of a colon; 0 for the name of a port. One letter is a drive, and the names of
/// ports have no such colon except in paths.
qsizetype schemeLength(const QString &text)
{
    const qsizetype colon = text.indexOf(u':');
    const auto belongs = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'+'
               || c == u'-' || c == u'.';
    };
    if (colon < 2 || !text.at(0).isLetter() || !std::all_of(text.cbegin(), text.cbegin() + colon, belongs))
        return 0;
    return colon;
}

/// A decimal number without sign or blanks; -1 for anything else.
qint64 wholeNumber(const QString &text)
{
    const bool isDigits = std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    bool ok = false;
    const qint64 number = text.toLongLong(&ok);
    return ok && isDigits ? number : -1;
}

/// Takes "?baud=" off the end of `rest`. The sentence says what is wrong; empty when nothing is.
QString takeBaud(QString &rest, int &baudRate)
{
    const qsizetype mark = rest.lastIndexOf(u'?'); // a path may contain one
    if (mark < 0)
        return {};
    const QString query = rest.mid(mark + 1);
    rest.truncate(mark);
    const QString key = QStringLiteral("baud=");
    if (!query.startsWith(key) || query.contains(u'&')) {
        return Texts::tr("\"?%1\" is not known here. Only the baud rate can follow, such as ?baud=%2.")
            .arg(query)
            .arg(SourceAddress::kDefaultBaud);
    }
    const qint64 baud = wholeNumber(query.mid(key.size()));
    if (baud < SourceAddress::kMinimumBaud || baud > SourceAddress::kMaximumBaud) {
        return Texts::tr("\"%1\" is not a baud rate. It is a whole number from %2 to %3.")
            .arg(query.mid(key.size()))
            .arg(SourceAddress::kMinimumBaud)
            .arg(SourceAddress::kMaximumBaud);
    }
    baudRate = int(baud);
    return {};
}

bool isIpv6(const QString &host)
{
    const QHostAddress address(host);
    return address.protocol() == QAbstractSocket::IPv6Protocol;
}

bool isHostName(const QString &host)
{
    const bool isPlain = std::all_of(host.cbegin(), host.cend(), [](QChar c) {
        return c.isLetterOrNumber() || c.isSurrogate() || c.isMark() || c == u'-' || c == u'.' || c == u'_';
    });
    // Names that are not Latin have a form for the name service; one without it does not resolve.
    return isPlain && (!QUrl::toAce(host).isEmpty() || host.contains(u'_'));
}

/// Reads "//host:port". The sentence says what is wrong; empty when nothing is.
QString takeHost(const QString &rest, SourceAddress &address)
{
    const QString example = schemeName(address.kind) + QStringLiteral("://192.168.1.20:4001");
    if (!rest.startsWith(QLatin1String("//")))
        return Texts::tr("The address of a network source looks like %1.").arg(example);
    const QString where = rest.mid(2);
    qsizetype hostEnd = where.indexOf(u':');
    if (where.startsWith(u'[')) {
        const qsizetype bracket = where.indexOf(u']');
        if (bracket < 0)
            return Texts::tr("The bracket after the IPv6 address is missing, as in %1.")
                .arg(schemeName(address.kind) + QStringLiteral("://[::1]:4001"));
        address.name = where.mid(1, bracket - 1);
        if (!isIpv6(address.name))
            return Texts::tr("\"%1\" is not an IPv6 address.").arg(address.name);
        hostEnd = bracket + 1;
        if (hostEnd < where.size() && where.at(hostEnd) != u':')
            return Texts::tr("Only a colon and the port can follow the bracket, as in %1.")
                .arg(schemeName(address.kind) + QStringLiteral("://[::1]:4001"));
    } else {
        if (hostEnd < 0)
            hostEnd = where.size();
        if (where.indexOf(u':', hostEnd + 1) >= 0)
            return Texts::tr("An IPv6 address needs brackets, as in %1.")
                .arg(schemeName(address.kind) + QStringLiteral("://[::1]:4001"));
        address.name = where.left(hostEnd);
        if (address.name.isEmpty())
            return Texts::tr("Add the host, as in %1.").arg(example);
        if (!isHostName(address.name))
            return Texts::tr("\"%1\" is not the name or address of a host.").arg(address.name);
    }
    const QString port = where.mid(hostEnd + 1);
    if (port.isEmpty())
        return Texts::tr("Add the port, as in %1.").arg(example);
    const qint64 number = wholeNumber(port);
    if (number < 1 || number > 0xFFFF)
        return Texts::tr("\"%1\" is not a port. It is a whole number from 1 to 65535.").arg(port);
    address.port = quint16(number);
    return {};
}

/// Reads what follows "scheme:". The sentence says what is wrong; empty when nothing is.
QString takeRest(QString rest, SourceAddress &address)
{
    QString problem;
    switch (address.kind) {
    case SourceKind::Serial:
        problem = takeBaud(rest, address.baudRate);
        address.name = rest;
        return problem.isEmpty() && rest.isEmpty() ? Texts::tr("Add the port, as in serial:/dev/ttyUSB0.") : problem;
    case SourceKind::Tcp:
    case SourceKind::Rfc2217:
    case SourceKind::Udp:
        problem = takeBaud(rest, address.baudRate);
        return problem.isEmpty() ? takeHost(rest, address) : problem;
    case SourceKind::File:
        address.name = rest;
        return rest.isEmpty() ? Texts::tr("Add the path of the file, as in file:recordings/walk.mcap.") : QString();
    case SourceKind::Demo:
        return rest.isEmpty() ? QString() : Texts::tr("Nothing can follow \"demo:\".");
    }
    return {};
}

QString hostText(const SourceAddress &address)
{
    const QString host = address.name.contains(u':') ? u'[' + address.name + u']' : address.name;
    return schemeName(address.kind) + QLatin1String("://") + host + u':' + QString::number(address.port);
}

} // namespace

std::optional<SourceAddress> SourceAddress::parse(const QString &text, QString *problem, int baudRate)
{
    SourceAddress address;
    address.baudRate = baudRate;
    const QString trimmed = text.trimmed();
    const bool isReadable = std::none_of(trimmed.cbegin(), trimmed.cend(), [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar::ReplacementCharacter;
    });
    const qsizetype length = schemeLength(trimmed);
    problem->clear();
    if (trimmed.isEmpty()) {
        *problem = Texts::tr("Choose a port, or type its path or an address.");
    } else if (trimmed.size() > kMaximumLength) {
        *problem = Texts::tr("This text is longer than any address.");
    } else if (!isReadable) {
        *problem = Texts::tr("This text contains characters that no address has.");
    } else if (length == 0) {
        address.name = trimmed;
    } else {
        const QString name = trimmed.left(length).toLower();
        const auto *scheme = std::find_if(std::begin(kSchemes), std::end(kSchemes),
                                          [&name](const Scheme &s) { return name == QLatin1String(s.name); });
        if (scheme == std::end(kSchemes)) {
            *problem =
                Texts::tr("\"%1:\" is not known here. Sources are serial:, tcp:, rfc2217:, udp:, file: and demo:.")
                    .arg(trimmed.left(length));
        } else {
            address.kind = scheme->kind;
            *problem = takeRest(trimmed.mid(length + 1), address);
        }
    }
    if (!problem->isEmpty())
        return std::nullopt;
    return address;
}

bool SourceAddress::isNetwork() const
{
    return kind == SourceKind::Tcp || kind == SourceKind::Rfc2217 || kind == SourceKind::Udp;
}

QString SourceAddress::text() const
{
    const QString baud = QStringLiteral("?baud=%1").arg(baudRate);
    switch (kind) {
    case SourceKind::Serial:
        return QLatin1String("serial:") + name + baud;
    case SourceKind::File:
    case SourceKind::Demo:
        return schemeName(kind) + u':' + name;
    default:
        return hostText(*this) + baud;
    }
}

QString SourceAddress::shortText() const
{
    switch (kind) {
    case SourceKind::Serial:
    case SourceKind::File:
        return name;
    case SourceKind::Demo:
        return QStringLiteral("demo:");
    default:
        return hostText(*this);
    }
}
