#include "tools/output.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "host/object_path.h"
#include "schema/names.h"

namespace vexor::tools {
namespace {

using cim::host::Data;
using cim::host::Element;
using cim::host::Instance;
using cim::host::NamedData;
using cim::host::ObjectPath;
using cim::schema::Class;
using cim::schema::equal_names;
using cim::schema::Property;
using cim::schema::Repository;
using Json = nlohmann::ordered_json;

constexpr std::array<std::string_view, 6> kSayNothing = {
    "CreationClassName", "SystemCreationClassName", "SystemName", "NameFormat", "Caption",
    "Description"};

/// Characters, not bytes.
std::size_t width(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80;
  }));
}

/// Control characters would break the lines.
std::string on_one_line(const std::string& text) {
  const bool clean =
      cim::schema::is_utf8(text) && std::none_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
      });
  return clean ? text : cim::schema::escape(text);
}

std::string element_text(const Data& data, const Element& element) {
  if (const auto* path = std::get_if<cim::host::PathPtr>(&element))
    return cim::host::to_short_text(**path);
  return cim::schema::to_text(cim::host::to_value(Data::of(data.base_type(), element)));
}

std::string cell(const Data* data) {
  if (data == nullptr || data->null) return {};
  if (!data->is_array()) return element_text(*data, data->element);
  std::string text;
  for (const Element& element : data->elements)
    text += (text.empty() ? "" : ", ") + element_text(*data, element);
  return text;
}

/// A value in a line of its own: paths whole, so that they can be used.
std::string value_text(const Data& data) {
  return data.null ? "NULL" : on_one_line(cim::schema::to_text(cim::host::to_value(data)));
}

bool is_identifier(std::string_view name) {
  return name.ends_with("Id") || name.ends_with("ID");
}

bool has_value(const std::vector<Instance>& instances, std::string_view property) {
  return std::any_of(instances.begin(), instances.end(), [&](const Instance& instance) {
    const Data* data = instance.find(property);
    return data != nullptr && !data->null;
  });
}

/// The class's properties in the order that people read them: keys, identifiers, the rest.
std::vector<const Property*> reading_order(const Repository& repository, const Class& cls) {
  const auto properties = repository.properties(cls);
  std::vector<const Property*> order(properties.begin(), properties.end());
  std::stable_sort(order.begin(), order.end(), [](const Property* a, const Property* b) {
    const auto rank = [](const Property* property) {
      if (property->is_key()) return 0;
      return is_identifier(property->name) ? 1 : 2;
    };
    return rank(a) < rank(b);
  });
  return order;
}

/// The asked names as the class writes them.
std::vector<std::string> declared_names(const Repository& repository, const Class& cls,
                                        const std::vector<std::string>& wanted) {
  std::vector<std::string> names;
  for (const std::string& name : wanted) {
    const Property* property = repository.property(cls, name);
    names.push_back(property == nullptr ? name : property->name);
  }
  return names;
}

std::string instance_table(const std::vector<std::string>& columns,
                           const std::vector<Instance>& instances) {
  std::vector<std::vector<std::string>> rows = {columns};
  for (const Instance& instance : instances) {
    std::vector<std::string>& row = rows.emplace_back();
    for (const std::string& column : columns)
      row.push_back(cell(instance.find(column)));
  }
  return columns_text(rows);
}

std::string heading(std::string_view class_name, std::size_t count, std::string_view name_space) {
  return std::string(class_name) + "   " + std::to_string(count) +
         (count == 1 ? " instance in " : " instances in ") + std::string(name_space) + "\n";
}

// --- JSON ----------------------------------------------------------------------------------------

Json instance_object(const Instance& instance, const Names& wanted);

Json element_json(CMPIType base, const Element& element) {
  if (const auto* flag = std::get_if<bool>(&element)) return *flag;
  if (const auto* number = std::get_if<std::uint64_t>(&element)) return *number;
  if (const auto* number = std::get_if<std::int64_t>(&element)) return *number;
  if (const auto* number = std::get_if<double>(&element)) return *number;
  if (std::holds_alternative<std::monostate>(element)) return nullptr;
  if (const auto* instance = std::get_if<cim::host::InstancePtr>(&element))
    return instance_object(**instance, std::nullopt);
  return cim::schema::to_text(cim::host::to_value(Data::of(base, element)));
}

Json data_json(const Data& data) {
  if (data.null) return nullptr;
  if (!data.is_array()) return element_json(data.type, data.element);
  Json array = Json::array();
  for (const Element& element : data.elements)
    array.push_back(element_json(data.base_type(), element));
  return array;
}

Json instance_object(const Instance& instance, const Names& wanted) {
  Json properties = Json::object();
  for (const NamedData& property : instance.properties) {
    if (wanted || !property.data.null) properties[property.name] = data_json(property.data);
  }
  return Json{{"class", instance.path.class_name},
              {"path", cim::host::to_text(instance.path)},
              {"properties", std::move(properties)}};
}

std::string dump(const Json& json) {
  // Texts that are not UTF-8 must not end the program.
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace

std::string columns_text(const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::vector<std::string>> cells;
  std::vector<std::size_t> widths;
  for (const std::vector<std::string>& row : rows) {
    std::vector<std::string>& line = cells.emplace_back();
    for (std::size_t i = 0; i < row.size(); ++i) {
      line.push_back(on_one_line(row[i]));
      if (i == widths.size()) widths.push_back(0);
      widths[i] = std::max(widths[i], width(line.back()));
    }
  }
  std::string text;
  for (const std::vector<std::string>& line : cells) {
    std::size_t blanks = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (!line[i].empty()) {
        text.append(blanks, ' ');
        text += line[i];
        blanks = 0;
      }
      blanks += widths[i] - width(line[i]) + 2;
    }
    text += '\n';
  }
  return text;
}

std::vector<std::string> default_columns(const Repository& repository, const Class& cls,
                                         const std::vector<Instance>& instances) {
  std::vector<std::string> columns;
  for (const Property* property : reading_order(repository, cls)) {
    const bool says_nothing =
        std::any_of(kSayNothing.begin(), kSayNothing.end(),
                    [&](std::string_view name) { return equal_names(name, property->name); });
    if (!says_nothing && has_value(instances, property->name)) columns.push_back(property->name);
  }
  return columns;
}

std::string instance_tables(const Repository& repository, const Class& asked,
                            std::string_view name_space, const std::vector<Instance>& instances,
                            const Names& wanted) {
  if (instances.empty()) return heading(asked.name, 0, name_space);
  std::vector<std::vector<Instance>> groups;
  for (const Instance& instance : instances) {
    auto group = std::find_if(groups.begin(), groups.end(), [&](const auto& candidate) {
      return equal_names(candidate.front().path.class_name, instance.path.class_name);
    });
    if (group == groups.end()) group = groups.emplace(groups.end());
    group->push_back(instance);
  }
  std::string text;
  for (const std::vector<Instance>& group : groups) {
    if (!text.empty()) text += '\n';
    const Class* own = repository.find(group.front().path.class_name);
    const Class& cls = own == nullptr ? asked : *own;
    const std::vector<std::string> columns =
        wanted ? declared_names(repository, cls, *wanted) : default_columns(repository, cls, group);
    text += heading(cls.name, group.size(), name_space) + instance_table(columns, group);
  }
  return text;
}

std::string instance_list(const Repository& repository, const Instance& instance,
                          const Names& wanted) {
  std::vector<std::string> names;
  if (const Class* cls = repository.find(instance.path.class_name)) {
    if (wanted) {
      names = declared_names(repository, *cls, *wanted);
    } else {
      for (const Property* property : reading_order(repository, *cls)) {
        if (has_value({instance}, property->name)) names.push_back(property->name);
      }
    }
  }
  std::vector<std::vector<std::string>> rows;
  rows.reserve(names.size());
  for (const std::string& name : names)
    rows.push_back({name, cell(instance.find(name))});
  return cim::host::to_text(instance.path) + "\n" + columns_text(rows);
}

std::string instances_mof(const std::vector<Instance>& instances) {
  std::string text;
  for (const Instance& instance : instances)
    text += (text.empty() ? "" : "\n") + cim::host::to_mof(instance);
  return text;
}

std::string instances_json(const std::vector<Instance>& instances, const Names& wanted) {
  Json array = Json::array();
  for (const Instance& instance : instances)
    array.push_back(instance_object(instance, wanted));
  return dump(array);
}

std::string instance_json(const Instance& instance, const Names& wanted) {
  return dump(instance_object(instance, wanted));
}

std::string method_text(const std::string& method, const cim::host::MethodResult& result) {
  std::string text = method + " returned " + value_text(result.value) + "\n";
  for (const NamedData& value : result.out)
    text += value.name + " = " + value_text(value.data) + "\n";
  return text;
}

std::string paths_text(const std::vector<ObjectPath>& paths) {
  std::string text;
  for (const ObjectPath& path : paths)
    text += cim::host::to_text(path) + "\n";
  return text;
}

std::string paths_json(const std::vector<ObjectPath>& paths) {
  Json array = Json::array();
  for (const ObjectPath& path : paths)
    array.push_back(cim::host::to_text(path));
  return dump(array);
}

}  // namespace vexor::tools
