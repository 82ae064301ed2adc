#pragma once
#include <QString>

class QTemporaryDir;

// The whole program for a benchmark, started as a user starts it but in a throw-away
// application folder with settings that make no first page and keep the start screen hidden.
// Prompts are scripted and never fail the run.
namespace ProgramBench {
void start(QTemporaryDir& folder);
}
