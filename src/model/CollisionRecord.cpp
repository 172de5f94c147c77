#include "CollisionRecord.h"

#include "CollisionState.h"

namespace {

// The side view's columns; the view from above names x and y of each.
constexpr const char* QuantityNames[3] = {"x", "v", "F"};
constexpr const char* ComponentNames[3][2] = {{"x", "y"}, {"vx", "vy"}, {"Fx", "Fy"}};

} // namespace

void CollisionRecord::Start(int16_t page)
{
    m_page = page;
    m_rows.clear();
}

std::vector<std::string> CollisionRecord::Header() const
{
    std::vector<std::string> names = {"t"};
    for (int body = 1; body <= 2; ++body)
        for (int q = 0; q < 3; ++q) {
            const std::string number = std::to_string(body);
            if (m_page != 1) {
                names.push_back(QuantityNames[q] + number);
                continue;
            }
            names.push_back(ComponentNames[q][0] + number);
            names.push_back(ComponentNames[q][1] + number);
        }
    return names;
}

void CollisionRecord::Add(CollisionState& state)
{
    // Reading a position inside the contact moves the point the motion after it
    // continues from: the record leaves that point where the run put it.
    const auto contactX = state.ContactX;
    const auto contactY = state.ContactY;
    const float t = state.SimulationTime;
    std::vector<double> row = {t};
    for (int16_t body = 1; body <= 2; ++body)
        for (int16_t quantity = CollisionState::Position; quantity <= CollisionState::Force; ++quantity) {
            row.push_back(state.BodyState(CollisionState::ComponentX, quantity, body, t));
            if (m_page == 1)
                row.push_back(state.BodyState(CollisionState::ComponentY, quantity, body, t));
        }
    m_rows.push_back(row);
    state.ContactX = contactX;
    state.ContactY = contactY;
}

CsvTable CollisionRecord::Table() const
{
    CsvTable table(Header());
    for (const std::vector<double>& row : m_rows)
        table.AddRow(row);
    return table;
}
