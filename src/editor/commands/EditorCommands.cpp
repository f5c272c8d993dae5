// What menus, arrows and dropped files of the editor do with files and programs.
#include "editor/commands/EditorCommands.h"

namespace korvane {

void EditorCommands::SaveGroove() {}
void EditorCommands::SaveGrooveWithSamples() {}
void EditorCommands::LoadGroove() {}
void EditorCommands::ResetGroove() {}
void EditorCommands::SavePart() {}
void EditorCommands::LoadPart() {}
void EditorCommands::ResetPart() {}
void EditorCommands::SaveProgram() {}
void EditorCommands::LoadProgram() {}
void EditorCommands::ResetProgram() {}
void EditorCommands::LoadWaveSample() {}
void EditorCommands::RemoveSample() {}
void EditorCommands::NeighbourSample(int) {}
void EditorCommands::ImportWave(int) {}
void EditorCommands::LibraryWave(int, int) {}
void EditorCommands::StepWave(int, int) {}
void EditorCommands::Drop(const char*) {}

} // namespace korvane
