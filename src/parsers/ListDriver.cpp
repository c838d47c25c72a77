#include "parsers/ListDriver.h"

#include "parsers/ParsersLog.h"
#include "parsers/formats/BarrandovListReader.h"
#include "parsers/formats/CinestarListReader.h"
#include "parsers/formats/ComedyCentralListReader.h"
#include "parsers/formats/DigiSportListReader.h"
#include "parsers/formats/DolceSportListReader.h"
#include "parsers/formats/HBOListReader.h"
#include "parsers/formats/JojCinemaListReader.h"
#include "parsers/formats/ListReader.h"
#include "parsers/formats/NovaListReader.h"
#include "parsers/formats/PalinsestoListReader.h"
#include "parsers/formats/PortNetworkListReader.h"
#include "parsers/formats/PrimaMaxListReader.h"
#include "parsers/xmltv/XMLTVListReader.h"
#include "sources/SourceId.h"

#include <algorithm>
#include <array>
#include <exception>

namespace guide {

namespace {

struct TypeReader {
    ListingsType type;
    ListReader reader;
};

constexpr std::array kReaders{
    TypeReader{ListingsType::PortNetwork, readPortNetworkLists},
    TypeReader{ListingsType::XMLTV, readXMLTVLists},
    TypeReader{ListingsType::Palinsesto, readPalinsestoLists},
    TypeReader{ListingsType::Barrandov, readBarrandovLists},
    TypeReader{ListingsType::DigiSport, readDigiSportLists},
    TypeReader{ListingsType::JojCinema, readJojCinemaLists},
    TypeReader{ListingsType::PrimaMax, readPrimaMaxLists},
    TypeReader{ListingsType::HBO, readHBOLists},
    TypeReader{ListingsType::Nova, readNovaLists},
    TypeReader{ListingsType::DolceSport, readDolceSportLists},
    TypeReader{ListingsType::Cinestar, readCinestarLists},
    TypeReader{ListingsType::ComedyCentral, readComedyCentralLists},
};

} // namespace

ListDriver::ListDriver(ListDriverEnvironment environment)
    : m_environment(std::move(environment)) {}

MergeResult ListDriver::netList(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages,
                                Moment now, ListingsType type) const {
    return m_environment.merge(items, read(items, pages, now, type), now, type);
}

ParsedLists ListDriver::read(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages,
                             Moment now, ListingsType type, MarkerTrace* trace) const {
    MarkerTrace unasked;
    ParsedLists lists;
    const auto entry = std::find_if(kReaders.begin(), kReaders.end(),
                                    [type](const TypeReader& candidate) { return candidate.type == type; });
    if (entry == kReaders.end()) {
        return lists;
    }
    if (items.empty()) {
        return lists;
    }
    lists.reserve(items.size());
    try {
        entry->reader({items, pages, now, m_environment.clock, m_environment.alphabet, m_environment.hosts,
                       m_environment.locale,
                       m_environment.timeZone ? m_environment.timeZone() : QTimeZone::systemTimeZone(),
                       trace ? *trace : unasked},
                      lists);
    } catch (const std::exception& exception) {
        qCWarning(parsersLog, "exception %s", exception.what());
    }
    return lists;
}

} // namespace guide
