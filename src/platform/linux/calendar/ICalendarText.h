#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <optional>
#include <vector>

namespace guide {

/// A property of a component, unfolded.
struct ICalendarProperty {
    /// In upper case.
    QByteArray name;
    /// As written, each with the semicolon in front of it; see iCalendarParameter.
    QByteArray parameters;
    /// As written, with its escapes.
    QByteArray value;
};

/// The value of a parameter, without its quotes; empty when it is missing.
QByteArray iCalendarParameter(const ICalendarProperty& property, QByteArrayView name);

/// The lines and components of an iCalendar text. Parts can be replaced while every other byte stays as it
/// is. Work grows with the size of the text, whatever it contains.
class ICalendarText {
  public:
    /// Offsets of a line, with the lines by which it is continued and the line end.
    struct Line {
        qsizetype begin = 0;
        qsizetype end = 0;
    };
    struct Component {
        /// In upper case.
        QByteArray name;
        /// Index of the enclosing component.
        std::optional<std::size_t> parent;
        /// Offset of its first line.
        qsizetype begin = 0;
        /// Offset of its END line.
        qsizetype last = 0;
        /// Offset after its END line.
        qsizetype end = 0;
        /// The properties, without those of enclosed components.
        std::vector<Line> lines;
    };
    /// Replaces the bytes from `begin` to `end`.
    struct Edit {
        qsizetype begin = 0;
        qsizetype end = 0;
        QByteArray replacement;
    };

    /// Nothing when components are not closed, are nested deeply or are too many.
    static std::optional<ICalendarText> parse(const QByteArray& text);

    const QByteArray& text() const { return m_text; }
    /// In the order of their first lines.
    const std::vector<Component>& components() const { return m_components; }
    QByteArrayView textOf(const Component& component) const;

    /// Whether the name of the property on this line is `name`, in upper case.
    bool hasName(const Line& line, QByteArrayView name) const;
    ICalendarProperty property(const Line& line) const;
    /// The first property of this name.
    std::optional<ICalendarProperty> property(const Component& component, QByteArrayView name) const;

    /// The text after edits that do not overlap. Lines of a replacement may end in CR LF; they get the line
    /// ends of the text.
    QByteArray edited(std::vector<Edit> edits) const;

  private:
    QByteArray m_text;
    std::vector<Component> m_components;
};

} // namespace guide
