#pragma once

#include <QCoreApplication>
#include <QString>

#include <array>
#include <cstdint>

// The introduction's book: 5 units of 3 to 8 pages, their titles, and the texts and
// frame captions of the two collision pages. Units and pages count from 1.
class IntroductionBook
{
    Q_DECLARE_TR_FUNCTIONS(IntroductionBook)

public:
    // The number of units, and the most pages any unit has.
    static constexpr int16_t UnitCount = 5;
    static constexpr int16_t MaxPages = 8;
    // The units that carry the experiments: the liquid pages and the collision pages.
    static constexpr int16_t LiquidUnit = 2;
    static constexpr int16_t CollisionUnit = 3;

    // Fills the page counts and the titles ("Unit:2 , Page:6").
    IntroductionBook();

    // The number of pages of a unit (1 to 5); 0 for a unit the book does not have.
    int16_t PagesInUnit(int16_t unit) const;

    // The title of a page; the empty text for a page the book does not have.
    QString PageTitle(int16_t unit, int16_t page) const;

    // The text pane's contents of a page: its own text on the collision pages,
    // otherwise its title.
    QString PageText(int16_t unit, int16_t page) const;

    // The caption of the picture's frame on a collision page; empty elsewhere.
    static QString FrameCaption(int16_t unit, int16_t page);

    // Which pages carry an experiment.
    static bool IsCollisionPage(int16_t unit, int16_t page);
    static bool IsLiquidPage(int16_t unit, int16_t page);

    // The texts of unit 3, pages 1 and 2.
    static QString TextA();
    static QString TextB();

private:
    std::array<int16_t, UnitCount + 1> m_PagesInUnit{};
    std::array<std::array<QString, MaxPages + 1>, UnitCount + 1> m_PageTitle;
};
