// The commands of a script and what they do.
#include "uishot/Script.h"

#include <cctype>
#include <sstream>
#include <stdexcept>

namespace korvane::uishot {

const char* const Script::kHelp = R"(  move X Y           the pointer, in the window
  press [BUTTON]     left, middle or right; left without a name
  release [BUTTON]
  click X Y [BUTTON] all three
  wheel N            notches, up positive
  key NAME           down and up: a letter, a digit, enter, space, left, right, ctrl, shift, alt, escape
  down NAME          down only
  up NAME
  hold NAME          from now on with ctrl, shift, alt, of which several with +, or none
  tick [N]           of the window's timer
  host INDEX VALUE   the host moves a parameter
  drop PATH          a file, where the pointer is
  shot FILE          a picture of the window as it is now
)";

namespace {

struct Word {
    const char* name;
    int number;
};
constexpr Word kButtons[] = {{"left", 0}, {"middle", 1}, {"right", 2}};
constexpr Word kModifiers[] = {
    {"none", 0}, {"ctrl", modifier::Ctrl}, {"shift", modifier::Shift}, {"alt", modifier::Alt}};
constexpr Word kKeys[] = {{"enter", key::Enter}, {"space", key::Space}, {"left", key::Left}, {"right", key::Right},
                          {"ctrl", key::Ctrl},   {"shift", key::Shift}, {"alt", key::Alt},   {"escape", key::Escape}};

template <std::size_t kCount>
int NumberOf(const Word (&words)[kCount], const std::string& name)
{
    for (const Word& word : words)
        if (name == word.name) return word.number;
    throw std::runtime_error("what is \"" + name + "\"?");
}

template <class T>
T Next(std::istream& command)
{
    T operand;
    if (!(command >> operand)) throw std::runtime_error("an operand is missing");
    return operand;
}

template <class T>
T NextOr(std::istream& command, T otherwise)
{
    T operand;
    return command >> operand ? operand : otherwise;
}

int KeyOf(const std::string& name)
{
    if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0])))
        return std::toupper(static_cast<unsigned char>(name[0]));
    return NumberOf(kKeys, name);
}

int ModifiersOf(const std::string& names)
{
    std::istringstream parts(names);
    int bits = 0;
    for (std::string name; std::getline(parts, name, '+');) bits |= NumberOf(kModifiers, name);
    return bits;
}

} // namespace

void Script::Play(std::istream& lines)
{
    for (std::string line; std::getline(lines, line);) {
        std::istringstream commands(line.substr(0, line.find('#')));
        for (std::string text; std::getline(commands, text, ';');) {
            std::istringstream command(text);
            try {
                Do(command);
            } catch (const std::runtime_error& error) {
                throw std::runtime_error("\"" + text + "\": " + error.what());
            }
            window.Serve(0);
        }
    }
}

void Script::Do(std::istream& command)
{
    std::string verb;
    if (!(command >> verb)) return;
    const auto button = [&] { return NumberOf(kButtons, NextOr<std::string>(command, "left")); };
    const auto move = [&] {
        const int x = Next<int>(command), y = Next<int>(command);
        window.MoveTo(x, y);
    };
    const int release = mouse::LeftUp - mouse::LeftDown;
    if (verb == "move")
        move();
    else if (verb == "press")
        window.Press(button());
    else if (verb == "release")
        window.Press(button() + release);
    else if (verb == "click") {
        move();
        const int number = button();
        window.Press(number);
        window.Press(number + release);
    } else if (verb == "wheel")
        window.Wheel(Next<int>(command));
    else if (verb == "key" || verb == "down" || verb == "up") {
        const int code = KeyOf(Next<std::string>(command));
        if (verb != "up") window.Key(code, true);
        if (verb != "down") window.Key(code, false);
    } else if (verb == "hold")
        window.HoldModifiers(ModifiersOf(Next<std::string>(command)));
    else if (verb == "tick")
        for (int count = NextOr(command, 1); count > 0; --count) window.Advance(editor.timerPeriod);
    else if (verb == "host") {
        const int index = Next<int>(command);
        const float value = Next<float>(command);
        if (editor.synth) editor.synth->SetParameter(index, value);
        editor.notices.Post(index, value);
    } else if (verb == "drop")
        window.Drop(Next<std::string>(command));
    else if (verb == "shot")
        keepPicture(Next<std::string>(command));
    else
        throw std::runtime_error("no such command");
}

} // namespace korvane::uishot
