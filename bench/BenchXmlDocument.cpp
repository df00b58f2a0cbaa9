// Reads a large file of dialog states with XmlDocument and with three other readers: load, traverse
// all elements, read one attribute of each. Prints each reader's best time and its ratio to
// XmlDocument.
//
//   BenchXmlDocument [megabytes]   (default: 25)
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include <QFile>
#include <QXmlStreamReader>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <pugixml.hpp>

#include "workspacecore/foundation/XmlDocument.h"

namespace {

/// Totals collected by a reader; equal for all if they did the same work.
struct Seen {
    long elements = 0;
    long idCharacters = 0;

    bool operator==(const Seen&) const = default;
};

void WriteDocument(const std::filesystem::path& path, std::size_t size) {
    std::string text = "<uiStates>";
    char buffer[512];
    for (int dialog = 0; text.size() < size; ++dialog) {
        std::snprintf(buffer, sizeof buffer,
                      "<dialogState id=\"ORVZ.Dialog.%d\" top=\"%d\" left=\"%d\" width=\"640\" "
                      "height=\"480\" resizable=\"1\" docked=\"0\" side=\"0\" >",
                      dialog, dialog % 1000, dialog % 777);
        text += buffer;
        for (int attribute = 0; attribute < 6; ++attribute) {
            std::snprintf(buffer, sizeof buffer,
                          "<stateAttribute id=\"column.%d\" type=\"%d\" value=\"width =3D %d\" >"
                          "</stateAttribute>",
                          attribute, attribute, dialog * attribute % 500);
            text += buffer;
        }
        text += "</dialogState>";
    }
    text += "</uiStates>";
    std::ofstream(path, std::ios::binary) << text;
}

void Walk(Orvane::XmlDocument& document, Seen& seen) {
    while (document.FindElem()) {
        ++seen.elements;
        seen.idCharacters += document.GetAttrib(L"id").GetLength();
        document.IntoElem();
        Walk(document, seen);
        document.OutOfElem();
    }
}

Seen ReadOwn(const std::string& path) {
    Seen seen;
    Orvane::XmlDocument document;
    if (document.Load(std::wstring(path.begin(), path.end()).c_str())) {
        Walk(document, seen);
    }
    return seen;
}

void Walk(pugi::xml_node parent, Seen& seen) {
    for (pugi::xml_node node = parent.first_child(); node; node = node.next_sibling()) {
        ++seen.elements;
        seen.idCharacters +=
            static_cast<long>(std::char_traits<char>::length(node.attribute("id").value()));
        Walk(node, seen);
    }
}

Seen ReadPugi(const std::string& path) {
    Seen seen;
    pugi::xml_document document;
    if (document.load_file(path.c_str())) {
        Walk(document, seen);
    }
    return seen;
}

void Walk(xmlNode* node, Seen& seen) {
    for (; node; node = node->next) {
        if (node->type != XML_ELEMENT_NODE) {
            continue;
        }
        ++seen.elements;
        if (xmlChar* id = xmlGetProp(node, reinterpret_cast<const xmlChar*>("id"))) {
            seen.idCharacters += xmlStrlen(id);
            xmlFree(id);
        }
        Walk(node->children, seen);
    }
}

Seen ReadLibxml(const std::string& path) {
    Seen seen;
    if (xmlDoc* document = xmlReadFile(path.c_str(), nullptr, XML_PARSE_HUGE)) {
        Walk(xmlDocGetRootElement(document), seen);
        xmlFreeDoc(document);
    }
    return seen;
}

Seen ReadQt(const std::string& path) {
    Seen seen;
    QFile file(QString::fromStdString(path));
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            ++seen.elements;
            seen.idCharacters += reader.attributes().value(QLatin1String("id")).toString().size();
        }
    }
    return seen;
}

double Milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> spent =
        std::chrono::steady_clock::now() - start;
    return spent.count();
}

/// Memory actually used by this process, in bytes.
double Resident() {
    std::ifstream status("/proc/self/statm");
    long total = 0;
    long resident = 0;
    status >> total >> resident;
    return static_cast<double>(resident) * 4096;
}

/// Must run first: memory freed by other readers would be reused unnoticed.
void PrintMemory(const std::string& path) {
    const double before = Resident();
    Orvane::XmlDocument document;
    document.Load(std::wstring(path.begin(), path.end()).c_str());
    const double grown = Resident() - before;
    const auto text = static_cast<double>(std::filesystem::file_size(path) * sizeof(wchar_t));
    Seen seen;
    Walk(document, seen);
    std::printf("%ld elements, text %.1f MB, memory beyond the text %.1f bytes per element\n",
                seen.elements, text / 1e6, (grown - text) / static_cast<double>(seen.elements));
}

struct Reader {
    const char* name;
    Seen (*read)(const std::string&);
    int runs;
    double best = 1e9;
    Seen seen = {};
};

} // namespace

int main(int argc, char** argv) {
    const std::size_t megabytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 25;
    const auto path = std::filesystem::temp_directory_path() / "BenchXmlDocument.xml";
    WriteDocument(path, megabytes * 1000 * 1000);

    PrintMemory(path.string());
    std::vector<Reader> readers = {{"XmlDocument", ReadOwn, 12},
                                   {"pugixml", ReadPugi, 12},
                                   {"libxml2", ReadLibxml, 3},
                                   {"QXmlStreamReader", ReadQt, 3}};
    // Alternating, so that other load on the machine does not affect only one reader.
    for (int run = 0; run < 12; ++run) {
        for (Reader& reader : readers) {
            if (run < reader.runs) {
                reader.best = std::min(
                    reader.best, Milliseconds([&] { reader.seen = reader.read(path.string()); }));
            }
        }
    }

    const Reader& own = readers.front();
    bool same = true;
    std::printf("%-18s %10s %14s\n", "reader", "best ms", "to XmlDocument");
    for (const Reader& reader : readers) {
        std::printf("%-18s %10.1f %14.2f\n", reader.name, reader.best, reader.best / own.best);
        same = same && reader.seen == own.seen;
    }
    std::filesystem::remove(path);
    if (!same) {
        std::fprintf(stderr, "the readers did not read the same content\n");
        return 1;
    }
    return 0;
}
