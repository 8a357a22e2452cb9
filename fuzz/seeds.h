#pragma once

#include <QByteArray>
#include <QList>

/// Inputs that fuzzing starts from, built by the simulator's encoders and the program's own exporters.
namespace seeds {

struct Seed
{
    const char *target; ///< folder in corpus/
    const char *name;
    QByteArray bytes;
};

QList<Seed> bootloader();
QList<Seed> capture();
QList<Seed> csv();
QList<Seed> hex();
QList<Seed> models();
QList<Seed> reply();
QList<Seed> settings();
QList<Seed> snapshot();
QList<Seed> stream();
QList<Seed> telnet();

} // namespace seeds
