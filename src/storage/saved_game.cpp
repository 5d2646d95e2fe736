#include "storage/saved_game.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>

#include "base/files.h"
#include "core/state/grid.h"
#include "core/state/work_lists.h"
#include "display/command_states.h"
#include "display/field.h"
#include "display/news.h"
#include "display/status_panel.h"
#include "platform/desktop.h"
#include "platform/picture.h"
#include "storage/value_file.h"

namespace {

struct Grid {
    Integer SpacingX = 0; // twips
    Integer SpacingY = 0;
    Integer Columns = 0;
    Integer Rows = 0;
};

// The order of the values is told once; `visit` reads or writes each of them.
template <class Visit>
void VisitGrid(Grid& grid, Visit visit) {
    visit(grid.SpacingX);
    visit(grid.SpacingY);
    visit(grid.Columns);
    visit(grid.Rows);
}

template <class Visit>
void VisitPlayersAndEdges(Visit visit) {
    visit(Game.CurrentPlayer);
    for (const int player : {1, 2}) {
        visit(Game.PlayerColor.at(player));
        visit(Game.PlayerName.at(player));
        visit(Game.PlayerScore.at(player));
        visit(Game.PlayerKind.at(player));
    }
    visit(Game.BoxesClaimed);
    visit(Game.LinesDrawn);
    visit(Game.FieldLeft);
    visit(Game.FieldRight);
    visit(Game.FieldTop);
    visit(Game.FieldBottom);
}

template <class Visit>
void VisitLineCounts(Visit visit) {
    visit(Game.HorizontalLineCount);
    visit(Game.VerticalLineCount);
    visit(Game.LineCount);
}

template <class Visit>
void VisitRow(Box& box, Visit visit) {
    visit(box.SidesDrawn);
    visit(box.Owner);
    for (Integer& side : box.Sides)
        visit(side);
}

template <class Visit>
void VisitRow(Line& line, Visit visit) {
    visit(line.Drawn);
    visit(line.X);
    visit(line.Y);
    visit(line.FirstBox);
    visit(line.SecondBox);
}

template <class Row, class Visit>
void WriteTable(std::vector<Row>& table, int lastRow, Visit write) {
    for (int row = 0; row <= lastRow; ++row)
        VisitRow(table.at(static_cast<std::size_t>(row)), write);
}

constexpr auto Read = [](auto& value) { ReadValue(value); };

// Row 0 stands for none, whatever the file holds there.
template <class Row>
void ReadTable(std::vector<Row>& table) {
    for (Row& row : table)
        VisitRow(row, Read);
    table.at(0) = Row{};
}

void RequireRows(Integer count) {
    if (count < 0)
        throw std::runtime_error("a table cannot have so few rows");
}

void ShowLoadedGame() {
    RedrawField();
    ShowPlayerStatus(1);
    ShowPlayerStatus(2);
    ShowLinesStatus();
    ShowBoxesStatus();
    Game.GamePaused = true;
    ShowAllMarkers(false);
    ShowGamePaused();
    EnterPhase(Phase::Prepared);
    TellNews();
}

Grid ReadGrid() {
    Grid grid;
    VisitGrid(grid, Read);
    if (grid.SpacingX <= 0 || grid.SpacingY <= 0)
        throw std::runtime_error("points cannot lie so close together");
    return grid;
}

bool FitsOnPicture(const Grid& grid) {
    return grid.Columns <= BoxesThatFit(PictureWidth(), grid.SpacingX) &&
           grid.Rows <= BoxesThatFit(PictureHeight(), grid.SpacingY);
}

void RefuseGame(const std::string& path) {
    ShowMessageBox("Window size is not large enough for:\r\n\n" + path, "Quibs Game Load Error",
                   MessageIcon::Exclamation, MessageButtons::Ok);
}

bool MayReplace(const std::string& path) {
    return ShowMessageBox(path + " already exists.\r\n\nDo you want to replace it?",
                          "Quibs Game Save Error", MessageIcon::Exclamation,
                          MessageButtons::YesNo) == MessageAnswer::Yes;
}

// Where the last `count` characters of UTF-8 begin; 0 when there are fewer.
std::size_t LastCharacters(const std::string& text, int count) {
    std::size_t position = text.size();
    while (count != 0 && position != 0)
        if ((static_cast<unsigned char>(text.at(--position)) & 0xC0) != 0x80)
            --count;
    return position;
}

bool IsGameExtension(std::string extension) {
    std::transform(extension.begin(), extension.end(), extension.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? letter - 32 : letter;
    });
    return extension == ".QBS";
}

} // namespace

std::string GameAsText() {
    std::string text;
    const auto write = [&text](const auto& value) { AppendValue(text, value); };
    // Those on the field; the settings may be meant for the next game.
    Grid grid{Game.PointSpacingX, Game.PointSpacingY, ToInteger(FieldColumns()),
              ToInteger(FieldRows())};
    VisitGrid(grid, write);
    VisitPlayersAndEdges(write);
    write(Game.BoxCount);
    WriteTable(Game.Boxes, Game.BoxCount, write);
    VisitLineCounts(write);
    WriteTable(Game.Lines, Game.LineCount, write);
    return text;
}

bool ReadGame() {
    const Grid grid = ReadGrid();
    if (!FitsOnPicture(grid))
        return false;
    ForgetLines();
    Game.GamePaused = false;
    Game.Lines.resize(1); // no board is whole before the last value
    Game.PointSpacingX = grid.SpacingX;
    Game.PointSpacingY = grid.SpacingY;
    Game.GridColumns = grid.Columns;
    Game.GridRows = grid.Rows;
    VisitPlayersAndEdges(Read);
    Read(Game.BoxCount);
    RequireRows(Game.BoxCount);
    SizeBoxTables();
    ReadTable(Game.Boxes);
    VisitLineCounts(Read);
    RequireRows(Game.LineCount);
    std::vector<Line> lines(static_cast<std::size_t>(Game.LineCount) + 1);
    ReadTable(lines);
    SizeLineTables();
    Game.Lines = std::move(lines);
    return true;
}

void SaveGame(const std::string& path) {
    if (FileExists(path) && (!MayReplace(path) || !IsEnabled(Command::Save)))
        return; // the game may have failed under the question
    try {
        WriteFile(path, GameAsText());
    } catch (const std::exception&) {
        // Told to nobody; the file channel may stay taken.
    }
}

void LoadGame(const std::string& path) {
    try {
        OpenForInput(path);
        const bool isTaken = ReadGame();
        CloseChannel();
        if (isTaken)
            ShowLoadedGame();
        else
            RefuseGame(path);
    } catch (const std::exception&) {
        // Told to nobody; the file channel may stay taken.
    }
}

std::string SavePath(const std::string& directory, const std::string& name) {
    constexpr int extensionLength = 4; // with its point
    std::string path = directory + "/" + name;
    const std::size_t lastFour = LastCharacters(path, extensionLength);
    const bool hasExtension =
        path.at(lastFour) == '.' && path.find('/', lastFour) == std::string::npos;
    if (hasExtension) {
        if (IsGameExtension(path.substr(lastFour)))
            return path;
        path.resize(lastFour);
    }
    return path + ".qbs";
}
