#include "ui/model/KeyTable.h"

#include "screens/Localized.h"

#include <QKeySequence>

#include <algorithm>
#include <array>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

struct Entry {
    KeyTable::Action action;
    std::vector<QKeyCombination> keys;
    /// Null for one that the list of keys does not show.
    const char* text;
};

const std::vector<Entry>& entries() {
    static const std::vector<Entry> kEntries{
        {KeyTable::SelectTab,
         {Qt::CTRL | Qt::Key_1, Qt::CTRL | Qt::Key_2, Qt::CTRL | Qt::Key_3, Qt::CTRL | Qt::Key_4,
          Qt::CTRL | Qt::Key_5, Qt::CTRL | Qt::Key_6},
         QT_TRANSLATE_NOOP("Guide", "Go to a tab")},
        {KeyTable::Find, {Qt::CTRL | Qt::Key_F}, QT_TRANSLATE_NOOP("Guide", "Search")},
        {KeyTable::Refresh, {Qt::CTRL | Qt::Key_R, Qt::Key_F5}, QT_TRANSLATE_NOOP("Guide", "Refresh")},
        {KeyTable::Back, {Qt::ALT | Qt::Key_Left}, QT_TRANSLATE_NOOP("Guide", "Back")},
        {KeyTable::Cancel, {Qt::Key_Escape}, QT_TRANSLATE_NOOP("Guide", "Clear, close or go back")},
        {KeyTable::Up, {Qt::Key_Up}, nullptr},
        {KeyTable::Down, {Qt::Key_Down}, nullptr},
        {KeyTable::PageUp, {Qt::Key_PageUp}, nullptr},
        {KeyTable::PageDown, {Qt::Key_PageDown}, nullptr},
        {KeyTable::Home, {Qt::Key_Home}, nullptr},
        {KeyTable::End, {Qt::Key_End}, nullptr},
        {KeyTable::NoAction,
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End},
         QT_TRANSLATE_NOOP("Guide", "Move through a list")},
        {KeyTable::Activate,
         {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space},
         QT_TRANSLATE_NOOP("Guide", "Open the row")},
        {KeyTable::Extend,
         {Qt::SHIFT | Qt::Key_Return, Qt::SHIFT | Qt::Key_Space},
         QT_TRANSLATE_NOOP("Guide", "Choose the rows since the last one")},
        {KeyTable::SelectAll, {Qt::CTRL | Qt::Key_A}, QT_TRANSLATE_NOOP("Guide", "Select all")},
        {KeyTable::Menu,
         {Qt::Key_F10, Qt::Key_Menu, Qt::SHIFT | Qt::Key_F10},
         QT_TRANSLATE_NOOP("Guide", "Actions on the row")},
        {KeyTable::Left, {Qt::Key_Left}, nullptr},
        {KeyTable::Right, {Qt::Key_Right}, nullptr},
        {KeyTable::Delete, {Qt::Key_Delete}, QT_TRANSLATE_NOOP("Guide", "Remove the row")},
        {KeyTable::MoveUp, {Qt::ALT | Qt::Key_Up}, nullptr},
        {KeyTable::MoveDown, {Qt::ALT | Qt::Key_Down}, nullptr},
        {KeyTable::NoAction,
         {Qt::ALT | Qt::Key_Up, Qt::ALT | Qt::Key_Down},
         QT_TRANSLATE_NOOP("Guide", "Move the row")},
        {KeyTable::ShowKeys, {Qt::Key_Question}, QT_TRANSLATE_NOOP("Guide", "Show these keys")},
        {KeyTable::Quit, {Qt::CTRL | Qt::Key_Q}, QT_TRANSLATE_NOOP("Guide", "Quit")},
    };
    return kEntries;
}

bool worksInWindow(KeyTable::Action action) {
    return action >= KeyTable::SelectTab && action <= KeyTable::Quit;
}

bool worksInList(KeyTable::Action action) {
    return action >= KeyTable::Up && action <= KeyTable::MoveDown;
}

QString shownKeys(const Entry& entry) {
    QStringList names;
    for (const QKeyCombination key : entry.keys) {
        const QString name = QKeySequence(key).toString(QKeySequence::NativeText);
        if (!names.contains(name)) {
            names << name;
        }
    }
    // The keys of the tabs are a range.
    return entry.action == KeyTable::SelectTab ? names.constFirst() + u" – "_s + names.constLast()
                                               : names.join(u", "_s);
}

} // namespace

QList<WindowKeyValue> KeyTable::windowKeys() {
    QList<WindowKeyValue> keys;
    for (const Entry& entry : entries()) {
        if (worksInWindow(entry.action)) {
            for (std::size_t number = 0; number < entry.keys.size(); ++number) {
                keys.push_back(
                    {QKeySequence(entry.keys[number]).toString(), entry.action, static_cast<int>(number)});
            }
        }
    }
    return keys;
}

QList<KeyHelpValue> KeyTable::help() {
    QList<KeyHelpValue> lines;
    for (const Entry& entry : entries()) {
        if (entry.text) {
            lines.push_back({shownKeys(entry), Localized::tr(entry.text)});
        }
    }
    return lines;
}

KeyTable::Action KeyTable::listAction(int key, int modifiers) {
    const auto pressed = QKeyCombination::fromCombined(
        key | (modifiers & ~static_cast<int>(Qt::KeypadModifier | Qt::GroupSwitchModifier)));
    for (const Entry& entry : entries()) {
        if (worksInList(entry.action) && std::ranges::find(entry.keys, pressed) != entry.keys.end()) {
            return entry.action;
        }
    }
    return NoAction;
}

} // namespace guide
