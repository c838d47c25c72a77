#include "parsers/xmltv/XMLSaxParser.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace guide {

namespace {

#if LIBXML_VERSION >= 21200
using ErrorPointer = const xmlError*;
#else
using ErrorPointer = xmlErrorPtr;
#endif

/// How many bytes the entities of a document may add to its own.
constexpr std::size_t kEntityAllowance = 10'000'000;
constexpr std::size_t kNowhere = std::string_view::npos - 1;
constexpr std::size_t kLeastElementSize = std::string_view("<a/>").size();
/// The library limits the expansion of general entities, but not the number of parameter references.
constexpr int kMostParameterReferences = 1'000;

/// Longer stretches without a "<" are looked at more closely.
constexpr std::size_t kLongStretch = std::size_t{64} << 10;
constexpr std::size_t kMostTagBytes = std::size_t{1} << 20;
/// The library compares every attribute of a tag with every other one, and likewise the names in the
/// declaration of an attribute.
constexpr std::size_t kMostAttributes = 10'000;
constexpr std::size_t kMostDeclarationBytes = std::size_t{128} << 10;

struct FreeContext {
    void operator()(xmlParserCtxtPtr context) const {
        if (context->myDoc) {
            xmlFreeDoc(context->myDoc);
            context->myDoc = nullptr;
        }
        xmlFreeParserCtxt(context);
    }
};
using Context = std::unique_ptr<xmlParserCtxt, FreeContext>;

struct FreeText {
    void operator()(xmlChar* text) const { xmlFree(text); }
};

std::string_view view(const xmlChar* text, std::size_t size) {
    return {reinterpret_cast<const char*>(text), size};
}

/// Whether the library can read the tag, comment or instruction that begins the text in reasonable time.
bool isReadable(std::string_view text) {
    if (text.starts_with("<![CDATA[")) {
        return true;
    }
    const bool isDeclaration = text.starts_with("<!") && !text.starts_with("<!--");
    text = text.substr(0, isDeclaration ? kMostDeclarationBytes : kMostTagBytes);
    if (text.starts_with("<!--") || text.starts_with("<?")) {
        return text.find(text[1] == '?' ? "?>" : "-->") != std::string_view::npos;
    }
    std::size_t values = 0;
    for (std::size_t at = text.find_first_of(">\"'"); at != std::string_view::npos;
         at = text.find_first_of(">\"'", at + 1)) {
        if (text[at] == '>') {
            return values <= kMostAttributes;
        }
        ++values;
        at = text.find(text[at], at + 1);
        if (at == std::string_view::npos) {
            break;
        }
    }
    return false;
}

/// The offset of the first tag that must not reach the library. Tags contain no "<", so that only the last
/// "<" of each stretch is looked for.
std::optional<std::size_t> unreadableTag(std::string_view document) {
    std::size_t mark = document.find('<');
    while (mark != std::string_view::npos && document.size() - mark > kLongStretch) {
        const std::size_t last = document.substr(mark, kLongStretch).rfind('<');
        if (last > 0) {
            mark += last;
            continue;
        }
        if (!isReadable(document.substr(mark))) {
            return mark;
        }
        mark = document.find('<', mark + kLongStretch);
    }
    return std::nullopt;
}

/// Attributes in the form of libxml2: five pointers each, for name, prefix, namespace, value and its end.
class Attributes final : public XMLAttributes {
  public:
    Attributes(xmlParserCtxtPtr context, int count, const xmlChar** attributes)
        : m_context(context)
        , m_count(count)
        , m_attributes(attributes) {}

    std::optional<std::string_view> value(std::string_view name) const override {
        for (int i = 0; i < m_count; ++i) {
            const xmlChar** attribute = m_attributes + 5 * i;
            if (attribute[1] || reinterpret_cast<const char*>(attribute[0]) != name) {
                continue;
            }
            const auto size = static_cast<std::size_t>(attribute[4] - attribute[3]);
            if (!std::memchr(attribute[3], '&', size)) {
                return view(attribute[3], size);
            }
            // The SAX interface does not resolve references to ampersands and to entities that the document
            // declares.
            m_resolved.reset(xmlStringLenDecodeEntities(m_context, attribute[3], static_cast<int>(size),
                                                        XML_SUBSTITUTE_REF, 0, 0, 0));
            return m_resolved ? view(m_resolved.get(), std::strlen(reinterpret_cast<char*>(m_resolved.get())))
                              : std::string_view{};
        }
        return std::nullopt;
    }

  private:
    xmlParserCtxtPtr m_context;
    int m_count;
    const xmlChar** m_attributes;
    mutable std::unique_ptr<xmlChar, FreeText> m_resolved;
};

/// One parse. The tree functions of the library are used only to store the entities of the document;
/// everything else is passed to the events.
class Parse {
  public:
    Parse(std::span<const char* const> elementNames, XMLEvents& events, const std::function<bool()>& stopped)
        : m_events(events)
        , m_mustStop(stopped)
        , m_context(xmlNewParserCtxt()) {
        if (!m_context) {
            return;
        }
        m_names.reserve(elementNames.size());
        for (const char* name : elementNames) {
            m_names.push_back(xmlDictLookup(m_context->dict, reinterpret_cast<const xmlChar*>(name), -1));
        }
        // Without XML_PARSE_HUGE the library limits names, depth and entity expansion. Without
        // XML_PARSE_NOENT and similar options it opens no external resource.
        xmlCtxtUseOptions(m_context.get(), XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_NOWARNING);
        *m_context->sax = handler();
    }

    std::optional<XMLBreak> run(const char* document) {
        constexpr auto kNoMemory = "out of memory";
        if (!m_context) {
            return XMLBreak{0, kNoMemory};
        }
        m_document = document;
        m_bound = m_document.size() + kEntityAllowance;
        // The input refers to the page; nothing is copied.
        xmlParserInputPtr input =
            xmlNewStringInputStream(m_context.get(), reinterpret_cast<const xmlChar*>(document));
        if (!input) {
            return XMLBreak{0, kNoMemory};
        }
        inputPush(m_context.get(), input);
        m_context->userData = this;
        xmlParseDocument(m_context.get());
        flushText();
        m_context->userData = nullptr;
        if (!m_context->wellFormed && !m_break) {
            m_break = XMLBreak{m_document.size(), "the document is not well-formed"};
        }
        return std::move(m_break);
    }

  private:
    static Parse& self(void* user) { return *static_cast<Parse*>(user); }

    static xmlSAXHandler handler() {
        xmlSAXHandler sax{};
        sax.initialized = XML_SAX2_MAGIC;
        sax.startElementNs = started;
        sax.endElementNs = ended;
        // Using one function for both keeps the library from examining blank text.
        sax.characters = text;
        sax.ignorableWhitespace = text;
        sax.cdataBlock = section;
        sax.serror = failed;
        sax.startDocument = [](void* user) { xmlSAX2StartDocument(self(user).m_context.get()); };
        sax.internalSubset = [](void* user, const xmlChar* name, const xmlChar* externalId,
                                const xmlChar* systemId) {
            xmlSAX2InternalSubset(self(user).m_context.get(), name, externalId, systemId);
        };
        sax.entityDecl = [](void* user, const xmlChar* name, int type, const xmlChar* publicId,
                            const xmlChar* systemId, xmlChar* content) {
            xmlSAX2EntityDecl(self(user).m_context.get(), name, type, publicId, systemId, content);
        };
        sax.getEntity = [](void* user, const xmlChar* name) {
            Parse& parse = self(user);
            return parse.m_stopped ? nullptr : xmlSAX2GetEntity(parse.m_context.get(), name);
        };
        sax.getParameterEntity = [](void* user, const xmlChar* name) {
            Parse& parse = self(user);
            if (++parse.m_parameterReferences > kMostParameterReferences) {
                parse.stop("too many parameter references");
            }
            return parse.m_stopped ? nullptr : xmlSAX2GetParameterEntity(parse.m_context.get(), name);
        };
        sax.attributeDecl = [](void* user, const xmlChar*, const xmlChar*, int, int, const xmlChar*,
                               xmlEnumerationPtr names) {
            xmlFreeEnumeration(names);
            self(user).stopIfAsked();
        };
        return sax;
    }

    std::size_t element(const xmlChar* name, const xmlChar* prefix) const {
        if (!prefix) {
            // Names come from the parser's dictionary, where equal names share one pointer.
            for (std::size_t i = 0; i < m_names.size(); ++i) {
                if (m_names[i] == name) {
                    return i;
                }
            }
        }
        return kOtherXMLElement;
    }

    static void started(void* user, const xmlChar* name, const xmlChar* prefix, const xmlChar*, int,
                        const xmlChar**, int attributeCount, int, const xmlChar** attributes) {
        Parse& parse = self(user);
        parse.flushText();
        parse.stopIfAsked();
        if (parse.spend(kLeastElementSize)) {
            parse.m_events.started(parse.element(name, prefix),
                                   Attributes{parse.m_context.get(), attributeCount, attributes});
        }
    }

    static void ended(void* user, const xmlChar* name, const xmlChar* prefix, const xmlChar*) {
        Parse& parse = self(user);
        parse.flushText();
        if (!parse.m_stopped) {
            parse.m_events.ended(parse.element(name, prefix));
        }
    }

    static void text(void* user, const xmlChar* piece, int size) {
        Parse& parse = self(user);
        const auto bytes = static_cast<std::size_t>(std::max(size, 0));
        if (bytes > 0 && parse.spend(bytes)) {
            parse.addText(view(piece, bytes));
        }
    }

    static void section(void* user, const xmlChar* piece, int size) {
        Parse& parse = self(user);
        const auto bytes = static_cast<std::size_t>(std::max(size, 0));
        parse.flushText();
        if (bytes > 0 && parse.spend(bytes)) {
            parse.m_events.text(view(piece, bytes));
        }
    }

    /// The library splits text at the first non-ASCII letter, every few hundred bytes after that, and at
    /// CRLF. Adjacent pieces are joined again.
    void addText(std::string_view piece) {
        const auto place = placeOf(piece);
        const bool continues =
            place && (place->start == m_textEnd || (place->start == m_textEnd + 1 && endsLine(place->start)));
        if (!continues) {
            flushText();
        }
        if (!place) {
            m_events.text(piece);
            return;
        }
        const bool isPlain = place->size == piece.size();
        if (isPlain && !continues) {
            m_text = *place;
        } else if (isPlain && place->start == m_textEnd && m_joined.empty()) {
            m_text.size += piece.size();
        } else {
            m_joined.append(textOf(std::exchange(m_text, {}))).append(piece);
        }
        m_textEnd = place->start + place->size;
    }

    void flushText() {
        m_textEnd = kNowhere;
        const std::string_view text = m_joined.empty() ? textOf(std::exchange(m_text, {})) : m_joined;
        if (!text.empty() && !m_stopped) {
            m_events.text(text);
        }
        m_joined.clear();
    }

    struct Span {
        std::size_t start = 0;
        std::size_t size = 0;
    };

    std::string_view textOf(Span span) const { return m_document.substr(span.start, span.size); }

    /// The offset of a pointer into the document.
    std::optional<std::size_t> offset(const void* at) const {
        const auto* place = static_cast<const char*>(at);
        const char* begin = m_document.data();
        const bool isInside =
            !std::less<>()(place, begin) && !std::less<>()(begin + m_document.size(), place);
        return isInside ? std::optional(static_cast<std::size_t>(place - begin)) : std::nullopt;
    }

    /// The span of the document that the piece was read from: the piece itself, or the bytes before the next
    /// input, which may include carriage returns. Nothing for text that comes from references.
    std::optional<Span> placeOf(std::string_view piece) const {
        if (const auto start = offset(piece.data())) {
            return Span{*start, piece.size()};
        }
        const auto next = offset(m_context->input->cur);
        if (!next) {
            return std::nullopt;
        }
        const std::size_t end = *next;
        if (m_document.substr(0, end).ends_with(piece)) {
            return Span{end - piece.size(), piece.size()};
        }
        std::size_t start = end;
        for (auto byte = piece.rbegin(); byte != piece.rend(); ++byte) {
            const bool isOld = *byte == '\n' && endsLine(start);
            if (!isOld && (start == 0 || m_document[start - 1] != *byte)) {
                return std::nullopt;
            }
            --start;
            if (*byte == '\n' && !isOld && endsLine(start)) {
                --start;
            }
        }
        return Span{start, end - start};
    }

    /// Whether a carriage return precedes the position.
    bool endsLine(std::size_t place) const { return place > 0 && m_document[place - 1] == '\r'; }

    static void failed(void* user, ErrorPointer error) {
        if (error->level == XML_ERR_FATAL) {
            self(user).flushText();
            self(user).stop(error->message ? error->message : "");
        }
    }

    /// Counts delivered bytes; without entities they cannot exceed the document. False once stopped.
    bool spend(std::size_t bytes) {
        m_delivered += bytes;
        if (m_delivered > m_bound) {
            stop("the entities of the document are too large");
        }
        return !m_stopped;
    }

    void stopIfAsked() {
        if (!m_stopped && m_mustStop && m_mustStop()) {
            stop("the reader stopped");
        }
    }

    void stop(std::string_view why) {
        if (!m_break) {
            // Of the document, not of the entity that is being read.
            const auto byte = m_context->inputNr > 0 ? offset(m_context->inputTab[0]->cur) : std::nullopt;
            why = why.substr(0, why.find('\n'));
            m_break = XMLBreak{byte.value_or(0), std::string(why)};
        }
        m_stopped = true;
        // Inside a parameter entity the library still reads input that stopping would free. It is then
        // stopped at the next opportunity and delivers nothing until then.
        if (m_context->inputNr <= 1) {
            xmlStopParser(m_context.get());
        }
    }

    XMLEvents& m_events;
    const std::function<bool()>& m_mustStop;
    Context m_context;
    std::optional<XMLBreak> m_break;
    std::vector<const xmlChar*> m_names;
    std::string_view m_document;
    /// Text not yet delivered: its span in the document, or a copy when carriage returns are in between.
    Span m_text;
    std::string m_joined;
    /// Its end in the document.
    std::size_t m_textEnd = kNowhere;
    std::size_t m_bound = 0;
    std::size_t m_delivered = 0;
    int m_parameterReferences = 0;
    bool m_stopped = false;
};

} // namespace

std::optional<XMLBreak> parseXML(const QByteArray& document, std::span<const char* const> elementNames,
                                 XMLEvents& events, const std::function<bool()>& stopped) {
    static std::once_flag initialised;
    std::call_once(initialised, xmlInitParser);
    Parse parse(elementNames, events, stopped);
    const auto tag = unreadableTag({document.constData(), std::strlen(document.constData())});
    if (!tag) {
        return parse.run(document.constData());
    }
    parse.run(document.left(static_cast<qsizetype>(*tag)).constData());
    return XMLBreak{*tag, "a tag is longer than 1 MB or has too many attributes"};
}

} // namespace guide
