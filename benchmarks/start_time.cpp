// kv_start_time [options] PROGRAM: how long a program takes from its start to the first painted picture of its window,
// seen from outside: the display server reports what is drawn into new windows. The program runs in a separate folder,
// where a language has been chosen. See docs/performance.md.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

#include "process_figures.h"

namespace {

constexpr int kPatienceMs = 60000;
constexpr int kSmallestWindow = 300; // pixels in either direction: helper windows of the toolkit are smaller
constexpr int kFewestColours = 16;   // in a picture that is more than a background
constexpr int kBetweenRunsMs = 500;

template <typename T> using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T> Reply<T> reply(T *answer)
{
    return {answer, &std::free};
}

/// The display as an observer sees it.
class Display
{
public:
    Display() : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection) != 0)
            return;
        const xcb_query_extension_reply_t *damage = xcb_get_extension_data(m_connection, &xcb_damage_id);
        if (!damage || !damage->present)
            return;
        m_damageEvent = damage->first_event + XCB_DAMAGE_NOTIFY;
        reply(xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
        const uint32_t wanted = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root,
                                     XCB_CW_EVENT_MASK, &wanted);
        xcb_flush(m_connection);
    }
    ~Display() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(Display)

    bool works() const { return m_damageEvent != 0; }

    /// Waits until a window of reasonable size has been drawn into. @return its picture and when it was reported
    std::optional<std::pair<QImage, qint64>> firstPicture()
    {
        QElapsedTimer waited;
        waited.start();
        while (waited.elapsed() < kPatienceMs) {
            const auto event = reply(xcb_poll_for_event(m_connection));
            if (!event) {
                pollfd request{xcb_get_file_descriptor(m_connection), POLLIN, 0};
                ::poll(&request, 1, 100);
                continue;
            }
            const qint64 ns = process_figures::monotonicNs();
            const int type = event->response_type & 0x7F;
            if (type == XCB_CREATE_NOTIFY) {
                const auto *created = reinterpret_cast<const xcb_create_notify_event_t *>(event.get());
                xcb_damage_create(m_connection, xcb_generate_id(m_connection), created->window,
                                  XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
                xcb_flush(m_connection);
            } else if (type == m_damageEvent) {
                const auto *drawn = reinterpret_cast<const xcb_damage_notify_event_t *>(event.get());
                if (drawn->geometry.width < kSmallestWindow || drawn->geometry.height < kSmallestWindow)
                    continue;
                const QImage picture = pictureOf(drawn->drawable, drawn->geometry);
                if (coloursIn(picture) >= kFewestColours)
                    return std::pair(picture, ns);
            }
        }
        return {};
    }

    /// Forgets what has been reported so far.
    void drain() const
    {
        while (reply(xcb_poll_for_event(m_connection))) {
        }
    }

private:
    QImage pictureOf(xcb_drawable_t window, const xcb_rectangle_t &geometry) const
    {
        const auto image = reply(xcb_get_image_reply(
            m_connection,
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, geometry.width, geometry.height, ~0U),
            nullptr));
        const int bytes = int(geometry.width) * int(geometry.height) * 4;
        if (!image || xcb_get_image_data_length(image.get()) != bytes)
            return {}; // gone already, or a display of few colours
        return QImage(xcb_get_image_data(image.get()), geometry.width, geometry.height, QImage::Format_RGB32).copy();
    }

    static qsizetype coloursIn(const QImage &picture)
    {
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height() && colours.size() < kFewestColours; ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
            for (int x = 0; x < picture.width(); ++x)
                colours.insert(line[x]);
        }
        return colours.size();
    }

    xcb_connection_t *m_connection;
    int m_damageEvent = 0;
};

struct Run
{
    double paintedMs = 0;
    double processorMs = 0; ///< total, until it was ended right after its first picture
    qint64 residentKib = 0; ///< at that time
    QImage picture;
};

/// Drops all cached files that no program is using. Root only.
bool dropCaches()
{
    ::sync();
    QFile file(QStringLiteral("/proc/sys/vm/drop_caches"));
    return file.open(QIODevice::WriteOnly) && file.write("3\n") == 2;
}

std::optional<Run> startOnce(Display &display, const QByteArray &program, const QByteArray &folder)
{
    display.drain();
    const qint64 startNs = process_figures::monotonicNs();
    const pid_t child = ::fork();
    if (child == 0) {
        if (::chdir(folder.constData()) == 0)
            ::execl(program.constData(), program.constData(), nullptr);
        ::_exit(127);
    }
    const auto painted = display.firstPicture();
    const process_figures::Figures figures = process_figures::look(child);
    ::kill(child, SIGTERM);
    rusage usage{};
    ::wait4(child, nullptr, 0, &usage);
    if (!painted)
        return {};
    const auto ms = [](const timeval &time) { return double(time.tv_sec) * 1e3 + double(time.tv_usec) * 1e-3; };
    return Run{double(painted->second - startNs) * 1e-6, ms(usage.ru_utime) + ms(usage.ru_stime), figures.residentKib,
               painted->first};
}

template <typename T> T median(std::vector<T> values)
{
    std::sort(values.begin(), values.end());
    return values[(values.size() - 1) / 2];
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption(
        {QStringLiteral("runs"), QStringLiteral("starts to measure"), QStringLiteral("N"), QStringLiteral("10")});
    parser.addOption({QStringLiteral("cold"), QStringLiteral("drop the kernel's caches before each (root only)")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("write the figures"), QStringLiteral("FILE")});
    parser.addOption(
        {QStringLiteral("picture"), QStringLiteral("save what was seen in the last run"), QStringLiteral("FILE")});
    parser.addPositionalArgument(QStringLiteral("program"), QStringLiteral("to start"));
    parser.process(application);
    QTextStream out(stdout);
    QTextStream problems(stderr);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);
    const QByteArray program =
        QFile::encodeName(QFileInfo(parser.positionalArguments().constFirst()).absoluteFilePath());
    const bool cold = parser.isSet(QStringLiteral("cold"));
    const int runs = std::max(1, parser.value(QStringLiteral("runs")).toInt());

    Display display;
    if (!display.works()) {
        problems << "kv_start_time: no display, or one without the damage extension\n";
        return 1;
    }
    const QTemporaryDir folder;
    QFile settings(folder.filePath(QStringLiteral("param.ini")));
    if (!settings.open(QIODevice::WriteOnly) || settings.write("[Main]\nLANGUAGE=EN\n") < 0)
        return 1;
    settings.close();

    std::vector<double> paintedMs;
    std::vector<double> processorMs;
    std::vector<qint64> residentKib;
    for (int i = cold ? 0 : -1; i < runs; ++i) { // the first warm start only fills the caches
        if (cold && !dropCaches()) {
            problems << "kv_start_time: caches can be dropped by root only\n";
            return 1;
        }
        const std::optional<Run> run = startOnce(display, program, QFile::encodeName(folder.path()));
        if (!run) {
            problems << "kv_start_time: no picture was painted\n";
            return 1;
        }
        ::usleep(kBetweenRunsMs * 1000);
        if (i < 0)
            continue;
        paintedMs.push_back(run->paintedMs);
        processorMs.push_back(run->processorMs);
        residentKib.push_back(run->residentKib);
        if (parser.isSet(QStringLiteral("picture")))
            run->picture.save(parser.value(QStringLiteral("picture")));
    }
    const auto [shortest, longest] = std::minmax_element(paintedMs.begin(), paintedMs.end());
    out << (cold ? "cold: " : "warm: ") << "painted after " << median(paintedMs) << " ms (median of " << runs << ", "
        << *shortest << " to " << *longest << "), processor " << median(processorMs) << " ms, memory "
        << median(residentKib) << " KiB\n";
    if (parser.isSet(QStringLiteral("json"))) {
        QFile file(parser.value(QStringLiteral("json")));
        const QJsonObject all{{QStringLiteral("cold"), cold},
                              {QStringLiteral("runs"), runs},
                              {QStringLiteral("median_ms"), median(paintedMs)},
                              {QStringLiteral("min_ms"), *shortest},
                              {QStringLiteral("max_ms"), *longest},
                              {QStringLiteral("processor_median_ms"), median(processorMs)},
                              {QStringLiteral("resident_median_kib"), median(residentKib)}};
        if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(all).toJson()) < 0)
            return 1;
    }
    return 0;
}
