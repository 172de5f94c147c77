#include "ProgramRecords.h"

ProgramRecords& ProgramRecords::instance()
{
    static ProgramRecords records;
    return records;
}
