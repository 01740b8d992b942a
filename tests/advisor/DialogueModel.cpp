#include "DialogueModel.h"

#include <algorithm>
#include <cctype>

namespace ls::test {

namespace {

constexpr std::size_t None = std::string::npos;
const std::string Unsure = "? - unsure";

std::string Trimmed(std::string text)
{
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    while (!text.empty() && text.front() == ' ') {
        text.erase(0, 1);
    }
    return text;
}

std::string Upper(std::string text)
{
    for (char& c : text) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return text;
}

bool Has(const std::string& text, const std::string& part)
{
    return text.find(part) != None;
}

bool Begins(const std::string& text, const std::string& part)
{
    return text.substr(0, part.size()) == part;
}

bool Concluded(const std::string& rule, const std::string& var)
{
    return rule.find('(') != None && rule.substr(0, rule.find('(')) == var;
}

} // namespace

bool DialogueModel::ReadLine(std::string& line)
{
    line.clear();
    if (m_pos >= m_bytes.size()) {
        return false;
    }
    while (m_pos < m_bytes.size() && m_bytes[m_pos] != '\r') {
        line += m_bytes[m_pos++];
    }
    m_pos = std::min(m_pos + 1, m_bytes.size());
    if (m_pos < m_bytes.size() && m_bytes[m_pos - 1] == '\r' && m_bytes[m_pos] == '\n') {
        ++m_pos;
    }
    return true;
}

bool DialogueModel::Box(const std::string& icon, const std::string& text)
{
    log.push_back("box " + icon + "|" + text);
    return false;
}

void DialogueModel::End(const std::string& reason)
{
    m_ended = true;
    log.push_back("ends " + reason);
}

void DialogueModel::Close()
{
    m_over = true;
    log.emplace_back("button Close");
}

// Skips the topic's text up to its block.
bool DialogueModel::FindBlock(int topic)
{
    m_pos = m_topics[static_cast<std::size_t>(topic - 1)].pos;
    std::string line;
    ReadLine(line);
    while (ReadLine(line) && !Begins(line, "[")) {
        if (Upper(Trimmed(line)) == "<IXML>") {
            return true;
        }
    }
    return false;
}

void DialogueModel::Run(int topic, const std::vector<std::size_t>& picks, bool reuse)
{
    if (!FindBlock(topic)) {
        log.emplace_back("no advisor");
        return;
    }
    m_rules.clear();
    m_topic = topic;
    m_reuse = reuse;
    m_over = false;
    std::string advice;
    if (!Load(topic, false, advice)) {
        log.push_back("text Failure loading logic section for topic <<" +
                      m_topics[static_cast<std::size_t>(topic - 1)].name + ">>; I can't proceed.");
        Close();
    } else if (!advice.empty()) {
        DispA(advice);
    } else {
        AskNext();
    }
    for (std::size_t given = 0; !m_over && !m_ended && !m_gaveUp; ++given) {
        if (given == picks.size()) {
            log.push_back("waiting " + m_currentVar);
            return;
        }
        Answer(picks[given]);
    }
}

bool DialogueModel::Answer(std::size_t pick)
{
    const std::string answer = pick == 0 ? "" : m_choices[pick % m_choices.size()];
    log.push_back("answer " + answer);
    if (answer.empty()) {
        return Box("", "Please select an answer before pressing NEXT");
    }
    const std::string advice = Record(m_currentVar, answer, m_currentTopic);
    if (m_ended) {
        return false;
    }
    Trace();
    if (advice.empty()) {
        AskNext();
    } else {
        DispA(advice);
    }
    return true;
}

void DialogueModel::Trace()
{
    std::string text = "trace";
    for (const std::string& rule : m_rules) {
        text += " " + rule;
    }
    text += " |";
    for (const std::string& target : m_targets) {
        text += " " + target;
    }
    log.push_back(text);
}

bool DialogueModel::Load(int topic, bool additional, std::string& advice)
{
    if (!additional) {
        m_targets.clear();
        m_vars.clear();
        m_loaded.clear();
        if (!m_answers.empty()) {
            Box("question", std::string("You have already answered some questions.  In case your answers are "
                                        "relevant to this topic, do you wish me to re-use those answers?|") +
                                (m_reuse ? "Yes" : "No"));
            if (!m_reuse) {
                m_answers.clear();
            }
        }
    }
    if (!FindLogic(additional) || !ReadLogic(additional)) {
        return false;
    }
    ReadQuestions(topic);
    if (m_targets.empty()) {
        m_targets.emplace_back("AV");
    }
    m_loaded.push_back(topic);
    advice = Replay(topic, advice);
    return true;
}

bool DialogueModel::FindLogic(bool additional)
{
    std::string line;
    if (!ReadLine(line)) {
        return Box("critical", "Lodestar Advisor: 62Error reading file <</m.IDA>> due to error");
    }
    bool found = Upper(Trimmed(line)) == "<LOGIC>";
    bool stop = !additional && Begins(line, "["); // an additional load begins at the topic's own header
    while (!found && !stop && ReadLine(line)) {
        found = Upper(Trimmed(line)) == "<LOGIC>";
        stop = Begins(line, "[");
    }
    return found || Box("critical", "Logic section missing for current topic");
}

bool DialogueModel::ReadLogic(bool additional)
{
    std::string line;
    std::string assumption;
    while (ReadLine(line) && !Begins(line, "[")) {
        line = Upper(Trimmed(line));
        const bool comment = Begins(line, "*");
        if (!comment && Has(line, "=")) {
            std::string packed;
            for (const char c : line) {
                packed += c == ' ' ? "" : std::string(1, c);
            }
            line = packed;
        }
        if (Has(line, "<DEFINITIONS>")) {
            m_definitions = additional ? m_definitions : m_pos;
            return true;
        }
        if (line.empty() || comment || line == "</LOGIC>") {
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals != None) {
            m_rules.push_back(line.substr(0, equals + 1) + assumption + line.substr(equals + 1));
        } else if (!TakeCommand(line, additional, assumption)) {
            return false;
        }
    }
    return Box("critical", "Can't find <DEFINITIONS> section for the current topic");
}

bool DialogueModel::TakeCommand(const std::string& line, bool additional, std::string& assumption)
{
    const std::string word = line.substr(0, line.find(' '));
    const std::string argument = Has(line, " ") ? line.substr(line.find(' ') + 1) : "";
    if (word == "ASSUME") {
        assumption = argument;
    } else if (word == "TARGET") {
        m_targets = additional ? m_targets : std::vector<std::string>{argument};
    } else if (word == "DEFINE") {
        if (!Has(argument, "@") || argument.find('@') == argument.size() - 1) {
            return Box("critical", "Invalid command <<" + line + ">>; can't load logic.");
        }
        const std::string title = Trimmed(argument.substr(argument.find('@') + 1));
        for (std::size_t i = 0; i < m_topics.size(); ++i) {
            std::string name = Upper(m_topics[i].name);
            name = Begins(name, "[") ? name.substr(1) : name;
            name = !name.empty() && name.back() == ']' ? name.substr(0, name.size() - 1) : name;
            if (name == title) {
                m_vars.push_back({argument.substr(0, argument.find('@')), "", static_cast<int>(i) + 1});
                break;
            }
        }
    } else {
        return Box("critical", "Invalid command in <LOGIC> section for the current topic");
    }
    return true;
}

void DialogueModel::ReadQuestions(int topic)
{
    std::string line;
    while (ReadLine(line)) {
        line = Upper(Trimmed(line));
        if (Has(line, "</DEFINITIONS>") || Begins(line, "[")) {
            return;
        }
        if (Begins(line, "<Q ID=") && Has(line, ">")) {
            m_vars.push_back({line.substr(6, line.find('>') - 6), "", topic});
        }
    }
}

std::string DialogueModel::Replay(int topic, std::string advice)
{
    // A copy: answers that the rules add meanwhile are not replayed.
    const std::vector<Fact> earlier = m_answers;
    for (const Fact& answer : earlier) {
        const bool applies =
            answer.topic == topic || std::any_of(m_vars.begin(), m_vars.end(), [&](const Fact& entry) {
                return entry.var == answer.var && entry.topic == answer.topic;
            });
        if (applies) {
            const std::string found = Assert(answer.var, answer.topic, Upper(answer.value));
            advice = advice.empty() ? found : advice;
        }
    }
    return advice;
}

void DialogueModel::Reduce(const std::string& var, const std::string& value)
{
    std::vector<std::string> kept;
    for (std::string rule : m_rules) {
        const std::size_t p = rule.find(var + "(");
        if (p == None) {
            kept.push_back(rule);
        } else if (p >= rule.find('=') && Has(rule, var + "(" + value + ")")) {
            rule = rule.substr(0, p) + rule.substr(rule.find(')', p) + 1);
            kept.push_back(rule);
        }
    }
    m_rules = kept;
}

std::string DialogueModel::Assert(const std::string& var, int topic, const std::string& value)
{
    Reduce(var, value);
    for (std::size_t t = m_targets.size(); t >= 1; --t) {
        const std::string goal = m_targets[t - 1];
        for (const std::string& rule : m_rules) {
            const std::size_t open = rule.find('(');
            const std::size_t close = rule.find(')');
            if (open == None || close == None || close < open) {
                Box("exclamation", "A LHS variable was found that is not in format Varname(Value): " + rule +
                                       " -- processing stopped");
                return "";
            }
            if (rule.find('=') != rule.size() - 1 || rule.substr(0, open) != goal) {
                continue;
            }
            const std::string concluded = rule.substr(open + 1, close - open - 1);
            if (std::none_of(m_answers.begin(), m_answers.end(), [&](const Fact& answer) {
                    return answer.var == goal && answer.topic == topic;
                })) {
                m_answers.push_back({goal, concluded, topic});
            }
            if (t == 1) {
                return goal == "AV" ? concluded : goal + "(" + concluded + ")";
            }
            Reduce(goal, concluded);
            m_targets.pop_back();
            break;
        }
    }
    return "";
}

std::string DialogueModel::Record(const std::string& var, const std::string& value, int topic)
{
    if (m_rules.empty()) {
        End("answer given while the rule table is empty");
        return "";
    }
    if (value != Unsure) {
        m_answers.push_back({var, value, topic});
        return Assert(var, topic, value);
    }
    if (std::none_of(m_rules.begin(), m_rules.end(),
                     [&](const std::string& rule) { return Concluded(rule, var); })) {
        End("unsure for a variable that no rule concludes");
    } else {
        m_targets.push_back(var);
    }
    return "";
}

std::string DialogueModel::Pick()
{
    std::vector<std::string> names;
    std::vector<int> levels;
    for (const std::string& rule : m_rules) {
        if (!Concluded(rule, m_targets.back())) {
            continue;
        }
        std::size_t from = rule.find('=') + 1;
        while (from != None && rule.find('(', from) != None) {
            const std::size_t open = rule.find('(', from);
            const std::string name = rule.substr(from, open - from);
            const auto known = std::find(names.begin(), names.end(), name);
            if (known == names.end()) {
                names.push_back(name);
                levels.push_back(1);
            } else {
                ++levels[static_cast<std::size_t>(known - names.begin())];
            }
            const std::size_t close = rule.find(')', open);
            from = close == None ? None : close + 1;
        }
    }
    std::string best;
    int level = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (levels[i] <= level) {
            continue;
        }
        if (std::find(m_targets.begin(), m_targets.end(), names[i]) != m_targets.end()) {
            Box("critical", "Warning--circular definition");
            End("circular definition");
            return "";
        }
        best = names[i];
        level = levels[i];
    }
    return best;
}

DialogueModel::Values DialogueModel::Collect(const std::string& var) const
{
    Values values;
    for (const std::string& rule : m_rules) {
        values.derived = values.derived || Concluded(rule, var);
        const std::size_t at = rule.find(var + "(");
        const std::size_t from = at + var.size() + 1;
        const std::size_t close = at == None ? None : rule.find(')', from);
        if (close != None && !Has(values.text, rule.substr(from, close - from) + ",")) {
            values.text += rule.substr(from, close - from) + ",";
            ++values.count;
        }
    }
    if (Begins(values.text, ",")) {
        values.text.erase(0, 1);
        --values.count;
    }
    return values;
}

int DialogueModel::Goto(const std::string& var, std::string& advice)
{
    const auto found =
        std::find_if(m_vars.begin(), m_vars.end(), [&](const Fact& entry) { return entry.var == var; });
    if (found == m_vars.end()) {
        Box("exclamation", "I can't find the variable definition for <<" + var + ">>.");
        return 0;
    }
    const int topic = found->topic;
    if (topic == m_topic) {
        m_pos = m_definitions;
        return topic;
    }
    const std::size_t pos = m_topics[static_cast<std::size_t>(topic - 1)].pos;
    if (std::find(m_loaded.begin(), m_loaded.end(), topic) == m_loaded.end()) {
        m_pos = pos;
        Load(topic, true, advice);
    }
    m_pos = pos;
    std::string line;
    ReadLine(line);
    do {
        line = Upper(Trimmed(line));
    } while (!Has(line, "<DEFINITIONS>") && !Has(line, "</DEFINITIONS>") && line != "</IXML>" &&
             ReadLine(line) && !Begins(line, "["));
    return topic;
}

std::string DialogueModel::ReadTagged(const std::string& tag)
{
    const std::string closing = "</" + tag.substr(1, tag.find(' ') - 1) + ">";
    std::string line;
    for (;;) {
        if (!ReadLine(line) || Begins(line, "[") || Upper(Trimmed(line)) == "</DEFINITIONS>") {
            return "";
        }
        if (!Begins(Trimmed(line), "*") && Has(Upper(line), tag)) {
            break;
        }
    }
    std::string piece = line.substr(Upper(line).find(tag) + tag.size());
    std::string text;
    bool begun = false;
    for (;;) {
        const bool last = Has(piece, closing);
        piece = Trimmed(piece.substr(0, piece.find(closing)));
        if (begun && !(last && piece.empty())) {
            text += "\r\n";
        }
        text += piece;
        begun = begun || !piece.empty();
        if (last || !ReadLine(piece) || Begins(piece, "[")) {
            return text;
        }
    }
}

void DialogueModel::AskNext()
{
    for (int round = 0; round < 100; ++round) {
        m_currentVar = Pick();
        if (m_ended) {
            return;
        }
        if (m_currentVar.empty()) {
            Close();
            log.push_back("text I can't find a question to ask for target " + m_targets.back() + ".");
            return;
        }
        std::string advice;
        m_currentTopic = Goto(m_currentVar, advice);
        if (!advice.empty()) {
            return DispA(advice);
        }
        if (m_currentTopic == 0) {
            return Close();
        }
        const Values values = Collect(m_currentVar);
        if (values.text.empty()) {
            return End("variable with no value in any rule");
        }
        std::string answer = Unsure;
        if (values.count < 2) {
            answer = values.text.substr(0, values.text.size() - 1);
        } else if (const std::string text = ReadTagged("<Q ID=" + m_currentVar + ">"); !text.empty()) {
            return Ask(text, values);
        } else if (!values.derived) {
            Close();
            log.push_back("text Can't find text for " + m_currentVar);
            return;
        }
        advice = Record(m_currentVar, answer, m_currentTopic);
        if (m_ended) {
            return;
        }
        if (!advice.empty()) {
            return DispA(advice);
        }
        if (values.count < 2 && Pick().empty()) {
            return m_ended ? void() : End("no next variable after an automatic one-value answer");
        }
    }
    m_gaveUp = true;
}

void DialogueModel::Ask(const std::string& text, const Values& values)
{
    m_choices.clear();
    if (values.derived) {
        m_choices.push_back(Unsure);
    }
    for (std::string rest = values.text; !rest.empty(); rest = rest.substr(rest.find(',') + 1)) {
        m_choices.push_back(rest.substr(0, rest.find(',')));
    }
    std::string line = "question " + m_currentVar + (values.derived ? " derived" : "");
    for (const std::string& choice : m_choices) {
        line += " [" + choice + "]";
    }
    log.push_back(line + ": " + text);
}

void DialogueModel::DispA(const std::string& advice)
{
    const std::string& name = m_topics[static_cast<std::size_t>(m_topic - 1)].name;
    std::string ignored;
    Goto(Has(advice, "(") ? advice.substr(0, advice.find('(')) : name, ignored);
    log.push_back("advice " + advice + ": " + ReadTagged("<AV ID=" + advice + ">"));
    Close();
}

} // namespace ls::test
