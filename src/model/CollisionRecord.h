#pragma once

#include "core/CsvTable.h"

#include <cstdint>
#include <string>
#include <vector>

class CollisionState;

// The data of one collision run, one row per step of the experiment's clock from
// its start: time, then position, velocity and force of body 1 and body 2. The
// view from above keeps x and y, the side view x only. A table a learner can take
// into a spreadsheet.
class CollisionRecord
{
public:
    // Forgets the last run and starts one on a page (1 from above, 2 side view).
    void Start(int16_t page);

    // Adds the row of the state's present clock, leaving the state as it was.
    void Add(CollisionState& state);

    // True when no run has been recorded.
    bool Empty() const { return m_rows.empty(); }

    // The column names, in the order of the rows.
    std::vector<std::string> Header() const;

    // The whole run as a table for a spreadsheet.
    CsvTable Table() const;

    // The rows recorded, oldest first.
    const std::vector<std::vector<double>>& Rows() const { return m_rows; }

private:
    int16_t m_page = 1;
    std::vector<std::vector<double>> m_rows;
};
