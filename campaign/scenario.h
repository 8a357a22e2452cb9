#pragma once

#include <QStringList>

#include <functional>

class Campaign;
class form_base;

/// What a campaign consists of: devices that are connected, things that go wrong, and what a user does meanwhile.
namespace scenario {

struct Device
{
    const char *name;
    const char *options; ///< of the simulator
    bool isGateway;
};

enum class Suits { All, Gateway };

struct Fault
{
    const char *name;
    Suits suits;
    bool damagesBytes;           ///< may damage frames that the simulator counts as intact
    void (*run)(Campaign &with); ///< starts it, lets time pass, and ends it
};

struct Habit
{
    const char *name;
    void (*run)(form_base &window); ///< main thread
};

const QList<Device> &devices();
const QList<Fault> &faults();
const QList<Habit> &habits();

/// Opens every window that is not open; the gateway's is opened if its action is enabled. One action each, as a user
/// would.
const QList<Habit> &openings();
/// Language, font, sizes and choices for which memory is compared.
void setPlainLook(form_base &window);
void startRecording(form_base &window);

} // namespace scenario
