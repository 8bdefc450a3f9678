#include "tests/mirovahrctl/program/faultyrun.h"

namespace FaultyRun {

void prepare(ProgramRun &run, const QString &folder, const Fault &fault)
{
    run.setVariable("LD_PRELOAD", MIROVAHR_FAULTYFILES);
    // The library stands before that of the sanitizer. Looking for leaks takes longer than all
    // else.
    run.setVariable("ASAN_OPTIONS",
                    qEnvironmentVariable("ASAN_OPTIONS")
                        + ":verify_asan_link_order=0:detect_leaks=0");
    run.setVariable("FAULTY_FOLDER", folder);
    run.setVariable("FAULTY_COUNTED", fault.counted);
    run.setVariable("FAULTY_CALL", QString::number(fault.call));
    run.setVariable("FAULTY_ERROR", QString::number(fault.error));
    run.setVariable("FAULTY_REST", fault.rest ? "1" : "0");
}

} // namespace FaultyRun
