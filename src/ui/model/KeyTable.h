#pragma once

#include <QKeyCombination>
#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace guide {

/// A key that works in the whole window, for QML.
struct WindowKeyValue {
    Q_GADGET
    QML_VALUE_TYPE(windowKey)
    Q_PROPERTY(QString sequence MEMBER sequence CONSTANT FINAL)
    /// A KeyTable.Action.
    Q_PROPERTY(int action MEMBER action CONSTANT FINAL)
    /// The key's number among the keys of its action.
    Q_PROPERTY(int number MEMBER number CONSTANT FINAL)

  public:
    QString sequence;
    int action = 0;
    int number = 0;
};

/// A line of the list of keys, for QML.
struct KeyHelpValue {
    Q_GADGET
    QML_VALUE_TYPE(keyHelp)
    Q_PROPERTY(QString keys MEMBER keys CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)

  public:
    QString keys;
    QString text;
};

/// The keys of the guide in one table, from which the window and its lists take them, and the list of keys
/// that the user can open.
class KeyTable : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(QList<guide::WindowKeyValue> windowKeys READ windowKeys CONSTANT)
    Q_PROPERTY(QList<guide::KeyHelpValue> help READ help CONSTANT)

  public:
    enum Action {
        NoAction,
        // In the whole window.
        SelectTab,
        Find,
        Refresh,
        Back,
        ShowKeys,
        Quit,
        // In a list.
        Up,
        Down,
        Left,
        Right,
        PageUp,
        PageDown,
        Home,
        End,
        Activate,
        Extend,
        SelectAll,
        Menu,
        Delete,
        MoveUp,
        MoveDown,
        // Handled by what has the keyboard.
        Cancel,
    };
    Q_ENUM(Action)

    using QObject::QObject;

    static QList<WindowKeyValue> windowKeys();
    static QList<KeyHelpValue> help();
    /// What a key does in a list.
    Q_INVOKABLE static guide::KeyTable::Action listAction(int key, int modifiers);
};

} // namespace guide
