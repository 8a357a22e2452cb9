#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <optional>

#include "link/kv_uart_port.h"
#include "support/files.h"
#include "support/simulator_process.h"
#include "updater/firmware_update.h"

/// A simulated device with only the update procedure on its line: it begins each update whatever the doubts, and
/// queries the device's build when it should be back. Several may run side by side.
class UpdateDevice : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateDevice)

public:
    static constexpr int kPacketBytes = 32;
    static constexpr quint32 kAddress = 0x08000000;

    /// `update`: the note is kept in `folder`, which outlives this object.
    explicit UpdateDevice(const QString &folder, const QStringList &options = {})
        : m_folder(folder),
          m_simulator(QStringList{QStringLiteral("--bootloader-wait"), QStringLiteral("250"), QStringLiteral("--rate"),
                                  QStringLiteral("1"), QStringLiteral("--flash-size"), QStringLiteral("64")}
                      + options),
          m_update(&m_port, folder)
    {
        m_askTimer.setInterval(60);
        connect(&m_askTimer, &QTimer::timeout, this, [this] {
            QMetaObject::invokeMethod(&m_port, "serialSend", Qt::QueuedConnection,
                                      Q_ARG(QByteArray, QByteArray("AT+INFO\r\n")));
        });
        connect(&m_port, &KvUartPort::serialRecv, this, &UpdateDevice::listen);
        connect(&m_port, &KvUartPort::opened, this, [this] { m_isOpen = true; });
        connect(&m_update, &FirmwareUpdate::stepChanged, this, [this](UpdateStep step) {
            steps.append(step);
            if (step == UpdateStep::ComeBack) {
                m_heard.clear();
                m_askTimer.start();
            }
        });
        connect(&m_update, &FirmwareUpdate::prepared, this, [this](const update_plan::Plan &plan) {
            if (!m_update.begin(true)) {
                refusal = plan;
                m_isDone = true;
            }
        });
        connect(&m_update, &FirmwareUpdate::finished, this, [this] {
            m_askTimer.stop();
            m_isDone = true;
        });
    }
    ~UpdateDevice() override
    {
        m_update.cancel();
        m_port.closeUART();
    }

    bool open()
    {
        m_isOpen = false;
        m_port.openUART(m_simulator.port(), 115200);
        return QTest::qWaitFor([this] { return m_isOpen; });
    }
    void close() { m_port.closeUART(); }

    /// Plans a fault of the bootloader, such as "flip 3".
    bool fault(const QByteArray &text) { return m_simulator.control(("bootloader " + text).constData()); }
    SimulatorProcess &simulator() { return m_simulator; }
    FirmwareUpdate &update() { return m_update; }
    KvUartPort &port() { return m_port; }

    /// An image of this many packets that contains its build; every packet differs.
    static QByteArray image(int packets, const QByteArray &build = "2026-05-17")
    {
        QByteArray bytes(packets * kPacketBytes, '\0');
        for (qsizetype i = 0; i < bytes.size(); ++i)
            bytes[i] = char(i * 7 + i / kPacketBytes * 13);
        const QByteArray text = "build " + build;
        return bytes.replace(8, text.size(), text);
    }

    void start(const QByteArray &image, int comeBackMs = 2500, bool erasesAgain = false)
    {
        FirmwareUpdate::Order order;
        order.subject.image = image;
        order.subject.fileAddress = kAddress;
        order.subject.address = kAddress;
        order.subject.baudRate = 115200;
        order.subject.deviceBuild = QStringLiteral("build 2026-03-02");
        order.file = QStringLiteral("/tmp/firmware.hex");
        order.comeBackMs = comeBackMs;
        order.erasesAgain = erasesAgain;
        m_isDone = false;
        refusal.reset();
        steps.clear();
        if (!m_update.prepare(order))
            m_isDone = true;
    }
    bool isDone() const { return m_isDone; }
    /// Runs one update to its end. False when it did not end.
    bool run(const QByteArray &image, int comeBackMs = 2500, bool erasesAgain = false)
    {
        start(image, comeBackMs, erasesAgain);
        return QTest::qWaitFor([this] { return m_isDone; }, 60000);
    }
    const UpdateResult &result() const { return m_update.result(); }

    /// The flash holds the image.
    bool isFlashRight(const QByteArray &image)
    {
        const QString path = m_dumps.filePath(QStringLiteral("flash.bin"));
        return m_simulator.control(("flash dump " + path.toUtf8()).constData()) && readFile(path).startsWith(image);
    }

    std::optional<update_plan::Plan> refusal; ///< the update was not begun, and why
    QList<UpdateStep> steps;

private:
    void listen(const QByteArray &bytes)
    {
        if (!m_askTimer.isActive())
            return;
        m_heard = (m_heard + bytes).right(8192);
        const qsizetype at = m_heard.indexOf("build ");
        const qsizetype end = at < 0 ? -1 : m_heard.indexOf('\r', at);
        if (end > 0)
            m_update.deviceCameBack(QString::fromLatin1(m_heard.mid(at, end - at)));
    }

    QString m_folder;
    QTemporaryDir m_dumps;
    SimulatorProcess m_simulator;
    KvUartPort m_port;
    FirmwareUpdate m_update;
    QTimer m_askTimer;
    QByteArray m_heard;
    bool m_isOpen = false;
    bool m_isDone = false;
};
