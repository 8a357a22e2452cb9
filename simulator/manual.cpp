#include "simulator/manual.h"

#include "simulator/controls.h"
#include "simulator/device_type.h"

namespace kvsim {

namespace {

// %1 is the table of devices, %2 the table of controls.
constexpr char kText[] = R"manual(Simulates an inertial measurement unit on a serial line.

Opens a pseudo-terminal, prints "port: /dev/pts/N" on standard output and behaves
there like the device: it streams data packets and answers commands. Open that port
with KVCenter at any baud rate. Nothing is sent while no one has the port open.
SIGINT, SIGTERM and the control "quit" end the program and remove its link.

Devices (--device):
%1
Commands, one per line, answered OK or ERROR:
  all           AT+INFO  AT+EOUT=0|1  AT+RST
  AT modules    AT+ID=0..255  AT+ODR=1|2|10|50|100|200|400  AT+MODE=0|1
  text modules  AT+ODR=1|2|10|50|100|250|500  CONFIG ATT MODE 0|1  SAVECONFIG
                REBOOT  LOG COMCONFIG  LOG USRCONFIG  LOG DISABLE  LOG ENABLE
A restart passes through the bootloader; then output is on and device time is 0. Rate,
id and AT+MODE survive it; CONFIG ATT MODE only after SAVECONFIG.

Bootloader: 50 ms after a restart it listens for --bootloader-wait ms, and starts the
firmware when no host talks. Once a host has, or while the firmware is incomplete, it
stays until a reset or execute command. It answers ping, get property (1 3 4 5 7 11 16 17),
erase all, erase region, read memory, write memory with its data phase, execute and
reset. An image that contains "build YYYY-MM-DD" reports that build. The flash
appears at --flash-base and at address 0; it keeps its contents while the program
runs, and "flash dump" writes it to a file.

Layouts (--layout):
  91       full record of floats, 76 bytes (default of modules)
  93       compact record of integers, 28 bytes
  items    small items 90 A0 B0 C0 D0 D1 F0
  62       gateway batch of full records (default of the gateway)
  63       gateway batch of compact records
  dynamic  gateway batches 62 and 63 alternately

Axes: AT modules and gateway x forward, y left, z up with Z-Y-X Euler angles; text
modules x right, y forward, z up with 3-1-2 Euler angles. Level and at rest, the
z axis reads +1 G.

Fixed values (--fixed): acc 0.25 -0.5 0.75 G; gyr 10.5 -20.5 30.5 deg/s; mag 12.5
-25 37.5 uT; roll 10, pitch -20, yaw 30 deg; quaternion 0.8 0.2 -0.4 0.4; 25 C;
101325 Pa. Gateway nodes have the ids 1, 2, 3 ... and node n adds (n - 1) * 0.125 G
to acc X. The device time runs.

Vibration (--vibration FREQUENCY:AMPLITUDE:AXIS[:RATIO,RATIO...], repeatable): a tone
in Hz with its peak amplitude on an axis of the accelerometer (x y z, G) or of the
gyroscope (gx gy gz, deg/s); the ratios are the amplitudes of the 2nd, 3rd ...
harmonic as fractions of AMPLITUDE. --vibration-noise ACC[:GYR] adds normal noise of these
standard deviations (G, deg/s). Both come on top of motion, recording or fixed values.
Tones begin with phase 0 at device time 0.

Recordings (--replay): CSV with the columns "Time (s)", "Gyroscope X (deg/s)" and
"Accelerometer X (g)" with Y and Z each, optionally "Magnetometer X (uT)"; played
in a loop, one row per frame.

Controls (--control), one per line on standard input, each answered "ok" or
"error: ..."; the end of the input ends the program:
%2
Exit codes: 0 ended on request, 1 the port or the link cannot be made, 2 the command
line or the recording is not valid.

Examples:
  kv_simulator --device mz221 --link /tmp/imu
  kv_simulator --device kv104 --rate 1000 --baud 921600 --motion spin
  kv_simulator --device gateway --nodes 8 --layout dynamic --noise 0.5
  kv_simulator --device mz221 --replay walk.csv --control
  kv_simulator --packet-size 512 --baud 921600 --bootloader "nak-share 5"
  kv_simulator --rate 1000 --vibration 50:0.5:z:0.5,0.25 --vibration 120:2:gx)manual";

const char *kindOf(Dialect dialect)
{
    switch (dialect) {
    case Dialect::Legacy:
        return "module, AT commands";
    case Dialect::Text:
        return "module, text commands";
    case Dialect::Gateway:
        break;
    }
    return "wireless gateway, AT commands";
}

} // namespace

QString manual()
{
    QString devices;
    for (const DeviceType &type : deviceTypes()) {
        devices += QStringLiteral("  %1 %2 (%3)\n")
                       .arg(QLatin1String(type.name), -8)
                       .arg(QLatin1String(type.modelLine), QLatin1String(kindOf(type.dialect)));
    }
    return QString(QLatin1String(kText)).arg(devices, controlsTable());
}

} // namespace kvsim
