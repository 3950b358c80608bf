// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of studies: vary --plot and the command interaction.
#include <algorithm>
#include <charconv>
#include <ostream>
#include <utility>

#include "core/text.h"
#include "front/console/csv.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/pictures.h"
#include "front/console/terminal.h"
#include "front/console/vary.h"
#include "front/json_writer.h"
#include "presentation/study_charts.h"
#include "studies/member.h"

namespace korvane {

namespace {

// The page of a plot, points.
constexpr double kWidth = 780, kHeight = 440, kLetters = 9, kMargin = 12;
constexpr Box kPlace{kMargin, kMargin, kWidth - kMargin, kHeight - kMargin};
/// Up to so many values of the second input are curves of their own, more make a map.
constexpr std::size_t kMostCurves = 8;
constexpr std::size_t kMostPlotted = 40000;

Drawn DrawnBy(const std::string& word) {
  if (word == "deflection") return Drawn::Deflection;
  return word == "IR" ? Drawn::Greatest : Drawn::Each;
}

bool HasNumbers(const VaryAxis& axis) {
  const InputKind kind = axis.column.input->kind;
  return kind == InputKind::Field || kind == InputKind::Loads;
}

std::vector<double> NumbersOf(const VaryAxis& axis) {
  std::vector<double> numbers;
  for (const std::string& value : axis.values) {
    std::from_chars(value.data(), value.data() + value.size(), numbers.emplace_back(0));
  }
  return numbers;
}

/// The samples of the first input for each value of the second; nothing, after a word, where a
/// value of the second is refused.
std::optional<std::vector<Curves>> SampleFamily(const Design& started, const ProjectState& base,
                                                const MemberInputs& inputs,
                                                const std::vector<VaryAxis>& axes,
                                                std::ostream& errors) {
  std::vector<Curves> family;
  const std::vector<double> along = NumbersOf(axes[0]);
  for (const std::string& value : axes[1].values) {
    ProjectState member = base;
    const InputCell cell{&*axes[1].column.input, value};
    if (const auto refused = inputs.Set({&cell, 1}, false, member)) {
      errors << *refused << '\n';
      return std::nullopt;
    }
    family.push_back(SampleCurves(started, member, inputs, *axes[0].column.input, along));
  }
  return family;
}

PaintJob JobOf(std::string title, std::function<void(DrawingTarget&)> page) {
  PaintJob job;
  job.width = kWidth;
  job.height = kHeight;
  job.title = std::move(title);
  job.pages.push_back(std::move(page));
  return job;
}

/// The chart of one or two inputs; nothing after a word.
std::optional<Chart> ChartOf(const Design& started, const ProjectState& base,
                             const MemberInputs& inputs, const std::vector<VaryAxis>& axes,
                             Drawn drawn, const std::string& title, std::ostream& errors) {
  if (axes.size() == 1) {
    const MemberInput& input = *axes[0].column.input;
    const std::vector<double> along = NumbersOf(axes[0]);
    const Curves curves = SampleCurves(started, base, inputs, input, along);
    Chart chart = CurvesChart(curves, drawn, title);
    Question question;
    question.input = input;
    question.present = PresentValue(base, input);
    question.low = std::min(along.front(), along.back());
    question.high = std::max(along.front(), along.back());
    question.sls = drawn == Drawn::Deflection;
    if (question.low < question.high) {
      AddAnswer(question, Solve(started, base, inputs, question), chart);
    }
    return chart;
  }
  const auto family = SampleFamily(started, base, inputs, axes, errors);
  if (!family) return std::nullopt;
  const VaryAxis& second = axes[1];
  if (HasNumbers(second) && second.values.size() > kMostCurves) {
    return MapChart(*family, *second.column.input, NumbersOf(second), drawn, title);
  }
  std::vector<std::string> names;
  for (const std::string& value : second.values) {
    const std::string unit = UnitOf(*second.column.input);
    names.push_back(!HasNumbers(second)
                        ? value
                        : second.column.heading + " = " + value + (unit.empty() ? "" : " " + unit));
  }
  return FamilyChart(*family, names, drawn, title);
}

/// Section, project and identification; the section only where it isn't varied.
std::string TitleOf(const ProjectState& st, const std::vector<VaryAxis>& axes,
                    const Catalogues& cat) {
  std::string title;
  const auto add = [&](const std::string& words) {
    if (!words.empty()) title += (title.empty() ? "" : ", ") + words;
  };
  const bool varied = std::any_of(axes.begin(), axes.end(), [](const VaryAxis& axis) {
    return axis.column.input->kind == InputKind::Section;
  });
  if (!varied) add(SectionTitle(st, cat));
  add(st.iproj);
  add(st.iident);
  return title;
}

}  // namespace

int PlotGrid(std::shared_ptr<const Library> library, const Design& started,
             const ProjectState& base, std::vector<VaryAxis> axes, const VaryOptions& options,
             std::ostream& output, std::ostream& errors) {
  std::size_t all = 1;
  for (const VaryAxis& axis : axes) all *= axis.values.size();
  if (axes.size() > 2 || all > kMostPlotted) {
    errors << "--plot draws one or two inputs of at most " << kMostPlotted << " designs\n";
    return kBadInput;
  }
  // What has no numbers can't be drawn along: it names the curves.
  if (axes.size() == 2 && !HasNumbers(axes[0])) std::swap(axes[0], axes[1]);
  if (!HasNumbers(axes[0])) {
    errors << "--plot draws along numbers, not along " << axes[0].column.heading << '\n';
    return kBadInput;
  }
  const MemberInputs inputs(library);
  const auto chart = ChartOf(started, base, inputs, axes, DrawnBy(options.y),
                             TitleOf(base, axes, library->catalogues), errors);
  if (!chart) return kBadInput;
  const PaintJob job = JobOf("KORVANE - vary - " + base.iproj, [&](DrawingTarget& page) {
    DrawChart(page, kPlace, *chart, kLetters);
  });
  return WritePictures(job, {options.plot, ""}, PictureFormat::Svg, {{options.file}}, output,
                       errors);
}

// --- Interaction --------------------------------------------------------------------------------

namespace {

/// A point of a diagram as the forces on its axes.
struct DiagramRow {
  const char* kind;
  EnvelopePoint at;
};

std::vector<DiagramRow> RowsOf(const InteractionDiagram& diagram) {
  std::vector<DiagramRow> rows;
  for (const EnvelopePoint& p : diagram.envelope) rows.push_back({"envelope", p});
  for (const EnvelopePoint& p : diagram.points) rows.push_back({"member", p});
  if (diagram.ratio > 0) rows.push_back({"governing", diagram.governing});
  return rows;
}

/// N, My and Mz of a row; what is not on an axis of the diagram is empty.
std::array<std::optional<double>, 3> ForcesOf(const InteractionDiagram& diagram,
                                              const EnvelopePoint& p) {
  switch (diagram.axes) {
    case InteractionAxes::NMy:
      return {p.a, p.b, std::nullopt};
    case InteractionAxes::NMz:
      return {p.a, std::nullopt, p.b};
    case InteractionAxes::MyMz:
      break;
  }
  return {std::nullopt, p.a, p.b};
}

constexpr std::array kForceNames{"N", "My", "Mz"};

std::string InteractionCsv(const std::vector<InteractionDiagram>& diagrams) {
  std::string text = "diagram,point,N,My,Mz\n";
  for (const InteractionDiagram& diagram : diagrams) {
    for (const DiagramRow& row : RowsOf(diagram)) {
      text += std::string(WordOf(diagram.axes)) + ',' + row.kind;
      for (const auto& force : ForcesOf(diagram, row.at)) {
        text += ',';
        if (force) text += Digits(float32(*force).Single());
      }
      text += '\n';
    }
  }
  return text;
}

std::string InteractionJson(const std::vector<InteractionDiagram>& diagrams) {
  JsonWriter json;
  return json.Take([&] {
    json.Objects("diagrams", diagrams, [&](const InteractionDiagram& diagram) {
      json.Member("diagram", WordOf(diagram.axes));
      json.Member("IR", diagram.ratio);
      json.Objects("points", RowsOf(diagram), [&](const DiagramRow& row) {
        json.Member("point", row.kind);
        const auto forces = ForcesOf(diagram, row.at);
        for (std::size_t i = 0; i < forces.size(); ++i) {
          if (forces.at(i)) json.Member(kForceNames.at(i), *forces.at(i));
        }
      });
    });
  }) + "\n";
}

}  // namespace

int RunInteraction(std::shared_ptr<const Library> library, const InteractionOptions& options,
                   std::ostream& output, std::ostream& errors) {
  const Design started = StartedDesign(library);
  ProjectState member = started.st;
  if (!ReadMember(options.file, member, errors)) return kBadInput;
  const std::vector<InteractionDiagram> diagrams =
      InteractionDiagrams(started, member, options.directions);
  if (diagrams.empty()) {
    errors << "arithmetic failure: the member can't be calculated\n";
    return kArithmeticFailure;
  }
  if (!options.plot.empty()) {
    const PaintJob job = JobOf("KORVANE - interaction - " + member.iproj, [&](DrawingTarget& page) {
      DrawInteraction(page, kPlace, diagrams, member.iufa, kLetters);
    });
    const int status = WritePictures(job, {options.plot, ""}, PictureFormat::Svg, {{options.file}},
                                     output, errors);
    if (status != kAllPass) return status;
  }
  const std::string path = options.csv.empty() ? std::string(kStandardStream) : options.csv;
  if (options.json) {
    output << InteractionJson(diagrams);
  } else if (options.plot.empty() || !options.csv.empty()) {
    const int status = SaveOutput(path, InteractionCsv(diagrams), {{options.file}}, output, errors);
    if (status != kAllPass) return status;
  }
  return diagrams.front().ratio > member.iufa ? kCheckFails : kAllPass;
}

}  // namespace korvane
