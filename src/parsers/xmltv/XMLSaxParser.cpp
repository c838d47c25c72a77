#include "parsers/xmltv/XMLSaxParser.h"

#include "parsers/xmltv/XMLStream.h"
#include "parsers/xmltv/XMLTagBounds.h"

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
/// The library reads sections and comments of up to 10 MB.
constexpr std::size_t kLongestHidden = std::size_t{11} << 20;
/// What may be read again behind sections that are not closed.
constexpr std::size_t kMostReadAgain = std::size_t{64} << 20;
/// The library limits the expansion of general entities, but not the number of parameter references.
constexpr int kMostParameterReferences = 1'000;

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
        m_whole = document;
        // The input refers to the page; nothing is copied.
        return run(m_context
                       ? xmlNewStringInputStream(m_context.get(), reinterpret_cast<const xmlChar*>(document))
                       : nullptr);
    }

    /// `keepsContent`: what follows the last start tag stays known to the stream.
    std::optional<XMLBreak> run(XMLStream& stream, bool keepsContent = false) {
        m_stream = &stream;
        m_keepsContent = keepsContent;
        xmlParserInputPtr input = nullptr;
        if (xmlParserInputBufferPtr buffer =
                m_context ? xmlParserInputBufferCreateIO(readStream, nullptr, this, XML_CHAR_ENCODING_NONE)
                          : nullptr) {
            input = xmlNewIOInputStream(m_context.get(), buffer, XML_CHAR_ENCODING_NONE);
            if (!input) {
                xmlFreeParserInputBuffer(buffer);
            }
        }
        return run(input);
    }

  private:
    std::optional<XMLBreak> run(xmlParserInputPtr input) {
        if (!input) {
            return XMLBreak{0, "out of memory", true};
        }
        inputPush(m_context.get(), input);
        m_context->userData = this;
        xmlParseDocument(m_context.get());
        flushText();
        m_context->userData = nullptr;
        if (m_break) {
            m_break->content = m_content;
        }
        if (!m_context->wellFormed && !m_break) {
            m_break =
                XMLBreak{reached().value_or(given()), "the document is not well-formed", false, m_content};
        }
        return std::move(m_break);
    }

    static int readStream(void* user, char* room, int size) {
        Parse& parse = self(user);
        // The library may look back by some hundred bytes.
        constexpr std::size_t kLookBack = std::size_t{64} << 10;
        const std::size_t reached = parse.reached().value_or(0);
        std::size_t kept = parse.m_text.size > 0 ? parse.m_text.start : reached;
        if (parse.m_keepsContent && reached - std::min(reached, parse.m_content) <= kLongestHidden) {
            kept = std::min(kept, parse.m_content);
        }
        parse.m_stream->forget(std::min(kept, reached) - std::min({kept, reached, kLookBack}));
        return static_cast<int>(parse.m_stream->read({room, static_cast<std::size_t>(std::max(size, 0))}));
    }

    /// What is known of the document, and the offset where it begins.
    std::string_view bytes() const { return m_stream ? m_stream->bytes() : m_whole; }
    std::size_t start() const { return m_stream ? m_stream->start() : 0; }
    /// How many bytes of the document the parser may have read.
    std::size_t given() const { return m_stream ? m_stream->given() : m_whole.size(); }
    /// Of the document, not of the entity that is being read.
    std::optional<std::size_t> reached() const {
        return m_context->inputNr > 0 ? offset(m_context->inputTab[0]->cur) : std::nullopt;
    }

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
        parse.m_content = parse.reached().value_or(parse.m_content);
        if (parse.spend(kLeastElementSize)) {
            parse.m_events.started(parse.element(name, prefix),
                                   Attributes{parse.m_context.get(), attributeCount, attributes});
            parse.m_wantsText = parse.m_events.wantsText();
        }
    }

    static void ended(void* user, const xmlChar* name, const xmlChar* prefix, const xmlChar*) {
        Parse& parse = self(user);
        parse.flushText();
        if (!parse.m_stopped) {
            parse.m_events.ended(parse.element(name, prefix));
            parse.m_wantsText = parse.m_events.wantsText();
        }
    }

    static void text(void* user, const xmlChar* piece, int size) {
        Parse& parse = self(user);
        const auto bytes = static_cast<std::size_t>(std::max(size, 0));
        if (bytes > 0 && parse.spend(bytes) && parse.m_wantsText) {
            parse.addText(view(piece, bytes));
        }
    }

    static void section(void* user, const xmlChar* piece, int size) {
        Parse& parse = self(user);
        const auto bytes = static_cast<std::size_t>(std::max(size, 0));
        parse.flushText();
        if (bytes > 0 && parse.spend(bytes) && parse.m_wantsText) {
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
        std::string_view text = m_joined.empty() ? textOf(std::exchange(m_text, {})) : m_joined;
        if (text.find('\r') != std::string_view::npos) {
            // The library keeps a carriage return that no line feed follows, which is a line end as well.
            if (m_joined.empty()) {
                m_joined = text;
            }
            std::ranges::replace(m_joined, '\r', '\n');
            text = m_joined;
        }
        if (!text.empty() && !m_stopped) {
            m_events.text(text);
        }
        m_joined.clear();
    }

    struct Span {
        std::size_t start = 0;
        std::size_t size = 0;
    };

    std::string_view textOf(Span span) const {
        return span.size == 0 ? std::string_view() : bytes().substr(span.start - start(), span.size);
    }

    /// The offset of a pointer into the document.
    std::optional<std::size_t> offset(const void* at) const {
        if (m_context->inputNr == 0) {
            return std::nullopt;
        }
        const xmlParserInput& input = *m_context->inputTab[0];
        const auto* place = static_cast<const xmlChar*>(at);
        const bool isInside = !std::less<>()(place, input.base) && !std::less<>()(input.end, place);
        return isInside ? std::optional(input.consumed + static_cast<std::size_t>(place - input.base))
                        : std::nullopt;
    }

    /// The byte before the offset; zero when it is no longer known.
    char before(std::size_t place) const { return place > start() ? bytes()[place - start() - 1] : '\0'; }

    /// The span of the document that the piece was read from: the piece itself, or the bytes before the next
    /// input, which may include carriage returns. Nothing for text that comes from references.
    std::optional<Span> placeOf(std::string_view piece) const {
        if (const auto begin = offset(piece.data())) {
            return Span{*begin, piece.size()};
        }
        const auto next = offset(m_context->input->cur);
        if (!next || *next < start()) {
            return std::nullopt;
        }
        const std::size_t end = *next;
        if (bytes().substr(0, end - start()).ends_with(piece)) {
            return Span{end - piece.size(), piece.size()};
        }
        std::size_t begin = end;
        for (auto byte = piece.rbegin(); byte != piece.rend(); ++byte) {
            const bool isOld = *byte == '\n' && endsLine(begin);
            if (!isOld && before(begin) != *byte) {
                return std::nullopt;
            }
            --begin;
            if (*byte == '\n' && !isOld && endsLine(begin)) {
                --begin;
            }
        }
        return Span{begin, end - begin};
    }

    /// Whether a carriage return precedes the position.
    bool endsLine(std::size_t place) const { return before(place) == '\r'; }

    static void failed(void* user, ErrorPointer error) {
        if (error->level == XML_ERR_FATAL) {
            self(user).flushText();
            self(user).stop(error->message ? error->message : "", false);
        }
    }

    /// Counts delivered bytes; without entities they cannot exceed the document. False once stopped.
    bool spend(std::size_t bytes) {
        m_delivered += bytes;
        if (m_delivered > given() + kEntityAllowance) {
            stop("the entities of the document are too large");
        }
        return !m_stopped;
    }

    void stopIfAsked() {
        if (!m_stopped && m_mustStop && m_mustStop()) {
            stop("the reader stopped");
        }
    }

    void stop(std::string_view why, bool isFinal = true) {
        if (!m_break) {
            why = why.substr(0, why.find('\n'));
            m_break = XMLBreak{reached().value_or(0), std::string(why), isFinal};
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
    /// The document, or where it comes from.
    std::string_view m_whole;
    XMLStream* m_stream = nullptr;
    /// Text not yet delivered: its span in the document, or a copy when carriage returns are in between.
    Span m_text;
    std::string m_joined;
    /// Its end in the document.
    std::size_t m_textEnd = kNowhere;
    std::size_t m_delivered = 0;
    std::size_t m_content = 0;
    bool m_keepsContent = false;
    bool m_wantsText = true;
    int m_parameterReferences = 0;
    bool m_stopped = false;
};

void initialise() {
    static std::once_flag initialised;
    std::call_once(initialised, xmlInitParser);
}

} // namespace

std::optional<XMLBreak> parseXML(const QByteArray& document, std::span<const char* const> elementNames,
                                 XMLEvents& events, const std::function<bool()>& stopped) {
    initialise();
    Parse parse(elementNames, events, stopped);
    const auto tag = unreadableTag({document.constData(), std::strlen(document.constData())});
    if (!tag) {
        return parse.run(document.constData());
    }
    parse.run(document.left(static_cast<qsizetype>(*tag)).constData());
    return XMLBreak{*tag, kUnreadableTag};
}

std::optional<XMLBreak> parseXML(TextSource& document, std::span<const char* const> elementNames,
                                 XMLEvents& events, const std::function<bool()>& stopped) {
    initialise();
    XMLStream stream(document);
    Parse parse(elementNames, events, stopped);
    auto end = parse.run(stream);
    return stream.fault().empty() ? std::move(end) : XMLBreak{stream.given(), std::string(stream.fault())};
}

std::optional<XMLBreak> parseXMLRows(TextSource& document, std::span<const char* const> elementNames,
                                     XMLEvents& events, std::string_view rowOpening,
                                     const std::function<bool()>& stopped) {
    initialise();
    XMLStream stream(document);
    std::size_t readAgain = 0;
    for (;;) {
        Parse parse(elementNames, events, stopped);
        auto end = parse.run(stream, true);
        if (!end && !stream.fault().empty()) {
            end = XMLBreak{stream.given(), std::string(stream.fault()), false, stream.given()};
        }
        if (!end || end->isFinal) {
            return end;
        }
        events.skippedRow();
        readAgain += end->byte - std::min(end->byte, end->content);
        const std::size_t from = readAgain <= kMostReadAgain ? std::min(end->byte, end->content) : end->byte;
        if (!stream.restartAt(from, rowOpening, "<tv>")) {
            return std::nullopt;
        }
    }
}

} // namespace guide
