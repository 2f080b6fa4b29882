#include "sheet/SheetPlanReader.h"

#include <cmath>

namespace workbench {

namespace {
constexpr int MostParts = 10; // rows or columns; with more, frames are too small for captions
constexpr double LeastText = 1.0;
constexpr double MostText = 10.0; // mm; larger captions would cover the picture
constexpr double MostScale = 1e6;

bool isOneOf(QStringView word, const char* german, const char* english)
{
    return word == QLatin1String(german) || word == QLatin1String(english);
}

/// Returns whether a statement sets up the program without drawing.
bool isSteering(QStringView word)
{
    for (const char* known :
         {"PROG", "KOPF", "HEAD", "STEU", "CTRL", "SIZ2", "MOVE", "DRAW", "PERS", "FARB", "COLO"})
        if (word == QLatin1String(known))
            return true;
    return false;
}

/// Removes the comment after a dollar sign; a dollar sign followed by a bracket begins a reference.
QStringView withoutComment(QStringView line)
{
    for (int i = 0; i < line.size(); ++i)
        if (line[i] == QLatin1Char('$') &&
            (i + 1 == line.size() || line[i + 1] != QLatin1Char('(')))
            return line.left(i);
    return line;
}

bool isSeparator(QChar c)
{
    return c.isSpace() || c == QLatin1Char('"');
}

template <class Words>
Words wordsOf(QStringView text)
{
    Words words;
    int start = -1;
    for (int i = 0; i <= text.size(); ++i) {
        const bool isEnd = i == text.size() || isSeparator(text[i]);
        if (!isEnd && start < 0)
            start = i;
        if (isEnd && start >= 0) {
            words.append(text.mid(start, i - start));
            start = -1;
        }
    }
    return words;
}

/// Returns the positive number at the beginning of a word, without a trailing factor, or 0 if the
/// word does not begin with a number.
double positive(QStringView word)
{
    int length = 0;
    while (length < word.size() && word[length] != QLatin1Char('*'))
        ++length;
    const double value = word.left(length).toString().toDouble();
    return std::isfinite(value) && value > 0.0 ? value : 0.0;
}

int parts(QStringView digits)
{
    int number = 0;
    for (const QChar c : digits) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            break;
        number = qMin(10 * number + c.unicode() - '0', MostParts);
    }
    return qMax(1, number);
}

void readDivision(QStringView word, SheetPlan* plan)
{
    const QString text = word.left(64).toString().toLower();
    const int cross = text.indexOf(QLatin1Char('x'));
    if (cross < 0)
        return;
    plan->rows = parts(QStringView(text).left(cross));
    plan->columns = parts(QStringView(text).mid(cross + 1));
}

double readScale(QStringView word)
{
    if (word == QLatin1String("-"))
        return SheetPlan::EngineeringScale;
    const double scale = positive(word);
    return scale > 0.0 ? qBound(1.0, scale, MostScale) : SheetPlan::ScaleToFit;
}

/// Reads the sheet format. "A3" is the format with this name, and "URS" is the report format, A4.
/// Both are landscape; a minus sign selects portrait. Returns false for any other word.
bool readSheet(QStringView word, SheetPlan* plan)
{
    const bool stands = word.startsWith(QLatin1Char('-'));
    const QStringView name = stands ? word.mid(1) : word;
    int format = 4;
    if (name.size() == 2 && name[0] == QLatin1Char('A'))
        format = name[1].unicode() - '0';
    else if (name != QLatin1String("URS"))
        return false;
    constexpr QSizeF Standing[] = {{841, 1189}, {594, 841}, {420, 594}, {297, 420},
                                   {210, 297},  {148, 210}, {105, 148}};
    if (format < 0 || format >= int(std::size(Standing)))
        return false;
    plan->size = stands ? Standing[format] : Standing[format].transposed();
    return true;
}
} // namespace

bool SheetPlanReader::State::operator==(const State& other) const
{
    return hasSetup == other.hasSetup && isEnded == other.isEnded && isJoined == other.isJoined &&
           loadCase == other.loadCase;
}

void SheetPlanReader::readLine(QStringView line)
{
    const QStringView text = withoutComment(line).trimmed();
    if (m_state.isEnded || text.startsWith(QLatin1Char('#')))
        return;
    int start = 0;
    for (int i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] != QLatin1Char(';'))
            continue;
        readStatement(text.mid(start, i - start).trimmed());
        start = i + 1;
    }
}

void SheetPlanReader::readStatement(QStringView statement)
{
    const Words words = wordsOf<Words>(statement);
    if (words.isEmpty() || m_state.isEnded)
        return;
    const QStringView key = words[0];
    if (isOneOf(key, "ENDE", "END"))
        m_state.isEnded = true;
    else if (isOneOf(key, "UND", "AND"))
        m_state.isJoined = m_state.hasSetup && !m_plan.isEmpty();
    else if (isOneOf(key, "SCHR", "SCHH"))
        readFont(words);
    else if (isOneOf(key, "BEOB", "VIEW"))
        readView(words);
    else if (isOneOf(key, "LF", "LC"))
        m_state.loadCase = words.size() > 1 ? qMax(0, words[1].toString().toInt()) : 0;
    else if (key == QLatin1String("SIZE"))
        readSetup(words);
    else if (m_state.hasSetup && !isSteering(key))
        addPicture(statement);
}

void SheetPlanReader::readFont(const Words& words)
{
    const double height = 10.0 * positive(words.back()); // the script uses centimetres
    if (height > 0.0)
        m_plan.textHeight = qBound(LeastText, height, MostText);
}

void SheetPlanReader::readSetup(const Words& words)
{
    m_state.hasSetup = true;
    for (int i = 1; i < words.size(); ++i) {
        const bool hasValue = i + 1 < words.size();
        if (readSheet(words[i], &m_plan) || !hasValue)
            continue;
        const QStringView value = words[i + 1];
        if (isOneOf(words[i], "M", "SC"))
            m_plan.scale = readScale(value);
        else if (isOneOf(words[i], "TEIL", "SPLI"))
            readDivision(value, &m_plan);
        else if (isOneOf(words[i], "RAND", "MARG"))
            m_plan.hasBorder = !isOneOf(value, "NEIN", "NO");
    }
}

void SheetPlanReader::readView(const Words& words)
{
    const int first = words.size() > 1 && isOneOf(words[1], "TYP", "TYPE") ? 2 : 1;
    const QStringView name = words.size() > first ? words[first] : QStringView();
    if (name == QLatin1String("STAN"))
        return readFreeView(words, first + 1);
    constexpr struct
    {
        const char* name;
        PictureView::Kind kind;
    } Known[] = {{"EG3", PictureView::Spatial},
                 {"EGX", PictureView::Flat},
                 {"EGXY", PictureView::PlaneXY},
                 {"EGXZ", PictureView::PlaneXZ},
                 {"EGYZ", PictureView::PlaneYZ}};
    PictureView view;
    for (const auto& known : Known)
        if (name == QLatin1String(known.name))
            view.kind = known.kind;
    setView(view);
}

void SheetPlanReader::readFreeView(const Words& words, int first)
{
    const auto number = [&words](int i) {
        return i < words.size() ? words[i].toString().toDouble() : 0.0;
    };
    PictureView view;
    double square = 0.0;
    for (int i = 0; i < 3; ++i) {
        view.eye[i] = number(first + i);
        square += view.eye[i] * view.eye[i];
    }
    view.roll = std::fmod(number(first + 4), 360.0); // after the word ROTA
    view.kind = PictureView::Free;
    const bool isUsable = std::isfinite(square) && square > 0.0 && std::isfinite(view.roll);
    setView(isUsable ? view : PictureView());
}

void SheetPlanReader::setView(const PictureView& view)
{
    if (m_plan.views.isEmpty() || !(m_plan.views.last() == view))
        m_plan.views.append(view);
}

void SheetPlanReader::addPicture(QStringView command)
{
    if (m_state.isJoined) {
        m_plan.pictures.last().secondLoadCase = m_state.loadCase;
        m_state.isJoined = false;
        return;
    }
    if (m_plan.views.isEmpty())
        m_plan.views.append(PictureView());
    SheetPicture picture;
    const bool isRepeated = !m_plan.isEmpty() && m_plan.pictures.last().command == command;
    picture.command = isRepeated ? m_plan.pictures.last().command : command.toString();
    picture.view = m_plan.views.size() - 1;
    picture.loadCase = m_state.loadCase;
    m_plan.pictures.append(picture);
}

SheetPlanReader::Progress SheetPlanReader::progress() const
{
    Progress progress;
    progress.state = m_state;
    progress.sheet = m_plan;
    progress.sheet.views = {}; // clear() would first copy the shared views
    progress.sheet.pictures = {};
    progress.views = m_plan.views.size();
    progress.pictures = m_plan.pictures.size();
    if (progress.views > 0)
        progress.lastView = m_plan.views.last();
    if (progress.pictures > 0)
        progress.secondLoadCase = m_plan.pictures.last().secondLoadCase;
    return progress;
}

void SheetPlanReader::resume(const Progress& progress)
{
    SheetPlan plan = progress.sheet;
    plan.views = m_plan.views.mid(0, progress.views);
    plan.pictures = m_plan.pictures.mid(0, progress.pictures);
    if (!plan.isEmpty())
        plan.pictures.last().secondLoadCase = progress.secondLoadCase;
    m_plan = plan;
    m_state = progress.state;
}

bool SheetPlanReader::continuesLike(const Progress& progress) const
{
    const Progress own = this->progress();
    return own.state == progress.state && own.sheet.hasSameSheet(progress.sheet) &&
           (own.views == 0) == (progress.views == 0) && own.lastView == progress.lastView &&
           (own.pictures == 0) == (progress.pictures == 0) &&
           own.secondLoadCase == progress.secondLoadCase;
}

void SheetPlanReader::append(const SheetPlan& plan, const Progress& progress)
{
    const int addedViews = m_plan.views.size() - progress.views;
    SheetPlan whole = plan;
    whole.views = m_plan.views + plan.views.mid(progress.views);
    whole.pictures = m_plan.pictures;
    whole.pictures.reserve(m_plan.pictures.size() + plan.pictures.size() - progress.pictures);
    if (progress.pictures > 0) // a later line may have added a plot to the last picture
        whole.pictures.last().secondLoadCase = plan.pictures[progress.pictures - 1].secondLoadCase;
    for (int i = progress.pictures; i < plan.pictures.size(); ++i) {
        whole.pictures.append(plan.pictures[i]);
        whole.pictures.last().view += addedViews;
    }
    m_plan = whole;
}

} // namespace workbench
