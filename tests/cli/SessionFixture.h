#pragma once

#include "CliFixture.h"

#include "cli/Session.h"

#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

namespace flowloom::test {

// `flowloom-cli session` with a script on its standard input, in a temporary
// program folder, on copies of the bundled example.
class SessionFixture : public CliFixture {
protected:
    // Runs the session; its transcript is out.str().
    int Session(std::vector<std::string> args, const std::string& script) {
        args.insert(args.begin(), "session");
        std::istringstream in(script);
        out.str({});
        err.str({});
        return cli::Run(args, in, out, err);
    }

    // The transcript lines that begin with one of `keys` and then a colon or
    // a blank ("list" picks "list: ..." but not "list-mark: ...").
    std::string Pick(std::initializer_list<std::string> keys) const {
        std::istringstream lines(out.str());
        std::string picked;
        for (std::string line; std::getline(lines, line);) {
            for (const std::string& key : keys)
                if (line.size() > key.size() && line.compare(0, key.size(), key) == 0 &&
                    (line[key.size()] == ':' || line[key.size()] == ' '))
                    picked += line + '\n';
        }
        return picked;
    }

    // Feeds a script to a session kept open, so that a test can look at the
    // designer between the lines.
    static void Feed(cli::Session& session, const std::string& script) {
        std::istringstream lines(script);
        for (std::string line; std::getline(lines, line) && !session.Ended();) session.Execute(line);
    }

    // A processes file of the test's own in the program folder.
    std::string File(const std::string& name, const std::string& xml) {
        const auto path = folder / name;
        WriteAll(path, xml);
        return path.string();
    }

    // The help catalogue beside the program, with one text per "Kind.Tag".
    void Catalogue(std::initializer_list<std::pair<std::string, std::string>> texts) {
        std::string xml = "<Root><Messages>";
        for (const auto& [code, text] : texts) xml += "<Message Code=\"" + code + "\" Text=\"" + text + "\"/>";
        WriteAll(folder / "messages.xml", xml + "</Messages></Root>");
    }
};

}  // namespace flowloom::test
