// SPDX-License-Identifier: MIT
//! \file
//! ScriptGenerator: draws the next step of a script.
#pragma once

#include "RandomScriptPlayer.h"

namespace zbtest {

//! Draws steps that mostly concern what there is. A step may come in several lines that belong
//! together, such as the ways in which a host removes an item.
class ScriptGenerator {
public:
    ScriptGenerator(ScriptPlayer& player, std::uint64_t seed)
        : player_(player)
        , numbers_(seed) {}

    //! The lines with which each script begins.
    [[nodiscard]] Script Prologue();
    [[nodiscard]] Script Next();

private:
    using Draw = Script (ScriptGenerator::*)();
    struct Choice {
        std::size_t weight;
        Draw draw;
    };

    Script DrawFrom(std::vector<Choice> const& choices);
    Script DrawStep();
    Script DrawAttack();
    Script DrawAmbush();
    ScriptStep DrawVictim(std::string const& place, std::string const& source,
                          std::string const& item);
    ScriptStep DrawDeed(std::string const& place, std::string const& source,
                        std::string const& item);
    std::string const& AnyMoment();
    Script DrawDataStep();
    Script DrawRemoval();
    Script DrawCrowd();
    Script DrawMark();
    Script DrawConnection();
    Script DrawFolder();
    Script DrawContent();
    Script DrawFolderMark();
    Script DrawExpansion();
    Script DrawHidden();
    Script DrawEvent();
    Script DrawRebuild();
    Script DrawRows();
    Script DrawThrow();

    // RandomScriptGenerator_Presentation.cpp
    Script DrawColumn();
    Script DrawOrder();
    Script DrawReading();
    Script DrawProperty();
    Script DrawValue();
    Script DrawSelection();
    Script DrawDataSelection();
    Script DrawQuestion();
    Script DrawNewView();
    Script DrawPainting();
    Script DrawOddStep();
    std::string AnyViewOfAll() { return numbers_.OneIn(6) ? "n0" : AnyView(); }
    std::string AnyPlaceIn(std::string const& view);
    std::string AnyRow(std::string const& place);
    std::string AnyColumn();
    std::string AnyProperty();
    static std::string ViewOf(std::string const& place) { return place.substr(0, 2); }

    std::string AnyView();
    std::string AnyPlace();
    std::string AnySource();
    std::string AnyTree() { return numbers_.OneIn(2) ? "t0" : "s1"; }
    std::string AnyItem(std::string const& source);
    std::string NewItem(std::string const& source);
    static std::vector<std::string> const& SourceNames();
    bool Flag() { return numbers_.OneIn(2); }

    ScriptPlayer& player_;
    RandomNumbers numbers_;
};

} // namespace zbtest
