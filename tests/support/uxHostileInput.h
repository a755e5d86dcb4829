#pragma once

#include <QSize>
#include <QtTest>

#include <cfloat>
#include <climits>
#include <functional>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

/// Hostile inputs swept over public operations. Every (class, operation, input)
/// becomes one QTest data row "Class::operation(input)"; after the call the
/// object must still paint (widgets) and pass its class's check, which reads
/// the getters and sees a valid value taken again.
/// @code
/// uxHostile::Sweep sweep;
/// sweep.add<QUxLed>("QUxLed", [](QUxLed& led) { led.setOnColor(QUxLed::RED); QCOMPARE(led.onColor(), QUxLed::RED); })
///     .ops("setOnColor", &QUxLed::setOnColor, "setOnShape", &QUxLed::setOnShape);
/// // in the test:  void sweep_data() { sweep.addRows(); }  void sweep() { sweep.runRow(); }
/// @endcode
/// The inputs follow the parameter type of the operation: double, float, int,
/// QString, QSize, an enumeration (given as Enum to a callable), a pair of
/// equal types (Range) or a pointer.
namespace uxHostile {

/// A value outside its enumeration, given as its integer and cast at the call.
struct Enum
{
    int value;
    /// For an int-based enumeration, which holds any int.
    template<typename E>
    E as() const
    {
        return static_cast<E>(value);
    }
    /// For an enumeration without a fixed type (Qt's), which holds only the values of its bits.
    template<typename E>
    E masked(int bits) const
    {
        return static_cast<E>(value & bits);
    }
};

/// Bounds given to a two-bound operation: upside down, undefined or unbounded.
template<typename T>
struct Range
{
    T low;
    T high;
};

template<typename T>
using Inputs = std::vector<std::pair<const char*, T>>;

/// A megabyte of 'x' or of '9', shared by every case that uses it.
inline const QString& megabyte(char fill = 'x')
{
    static const QString letters(1 << 20, QLatin1Char('x'));
    static const QString digits(1 << 20, QLatin1Char('9'));
    return fill == '9' ? digits : letters;
}

template<typename T>
Inputs<T> inputs()
{
    const double inf = qInf();
    const float finf = std::numeric_limits<float>::infinity();
    if constexpr (std::is_same_v<T, double>)
        return {{"NaN", qQNaN()},       {"+inf", inf},          {"-inf", -inf},           {"DBL_MAX", DBL_MAX},
                {"-DBL_MAX", -DBL_MAX}, {"denormal", 4.9e-324}, {"-denormal", -4.9e-324}, {"0", 0.0}};
    else if constexpr (std::is_same_v<T, float>)
        return {{"NaN", std::numeric_limits<float>::quiet_NaN()},
                {"+inf", finf},
                {"-inf", -finf},
                {"FLT_MAX", FLT_MAX},
                {"-FLT_MAX", -FLT_MAX},
                {"denormal", std::numeric_limits<float>::denorm_min()}};
    else if constexpr (std::is_same_v<T, int>)
        return {{"INT_MIN", INT_MIN}, {"INT_MAX", INT_MAX}, {"-1", -1}, {"0", 0}};
    else if constexpr (std::is_same_v<T, Enum>)
        return {{"-1", {-1}}, {"999", {999}}, {"INT_MIN", {INT_MIN}}, {"INT_MAX", {INT_MAX}}};
    else if constexpr (std::is_same_v<T, QString>)
        return {{"null", QString()},
                {"empty", QLatin1String("")},
                {"1MB letters", megabyte()},
                {"1MB digits", megabyte('9')},
                {"NUL and lone surrogate", QString(QChar(0)) + QChar(0xD800)}};
    else if constexpr (std::is_same_v<T, QSize>)
        return {{"-1x-1", {-1, -1}}, {"INT_MIN^2", {INT_MIN, INT_MIN}}, {"INT_MAX^2", {INT_MAX, INT_MAX}}, {"0x0", {}}};
    else if constexpr (std::is_same_v<T, Range<double>>)
        return {{"1..-1", {1, -1}},
                {"DBL_MAX..-DBL_MAX", {DBL_MAX, -DBL_MAX}},
                {"NaN..NaN", {qQNaN(), qQNaN()}},
                {"NaN..1", {qQNaN(), 1}},
                {"-inf..+inf", {-inf, inf}},
                {"+inf..-inf", {inf, -inf}}};
    else if constexpr (std::is_same_v<T, Range<int>>)
        return {{"1..-1", {1, -1}}, {"INT_MAX..INT_MIN", {INT_MAX, INT_MIN}}, {"INT_MIN..INT_MAX", {INT_MIN, INT_MAX}}};
    else if constexpr (std::is_pointer_v<T> || std::is_same_v<T, std::nullptr_t>)
        return {{"nullptr", nullptr}};
    else
        static_assert(std::is_void_v<T>, "no hostile inputs for this parameter type");
}

namespace detail {

/// The parameter types of a lambda or a function.
template<typename F>
struct Signature : Signature<decltype(&F::operator())>
{
};
template<typename R, typename A>
struct Signature<R (*)(A)>
{
    using First = std::decay_t<A>;
};
template<typename C, typename R, typename A>
struct Signature<R (C::*)(A) const> : Signature<R (*)(A)>
{
};
template<typename C, typename R, typename A, typename B>
struct Signature<R (C::*)(A, B) const>
{
    using Second = std::decay_t<B>;
};

/// Qt's complaints about refused sizes and ranges are the expected answer here.
struct QuietWarnings
{
    QuietWarnings() : previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {})) {}
    ~QuietWarnings() { qInstallMessageHandler(previous); }
    QtMessageHandler previous;
};

/// The widget's top-left corner painted: enough to run its paint code, and a widget
/// told to be 16777215 pixels wide does not make the sweep allocate gigabytes.
inline QImage paintedCorner(QWidget* widget)
{
    return widget->grab(QRect(QPoint(), widget->size().boundedTo(QSize(512, 512)))).toImage();
}

} // namespace detail

class Sweep
{
public:
    template<typename W>
    class Class
    {
    public:
        using Make = std::function<std::shared_ptr<W>()>;
        using Check = std::function<void(W&)>;

        /// @p call (W&, T) runs once for every hostile T, each time on a fresh object.
        template<typename F>
        Class& op(const QByteArray& name, F call)
        {
            using T = typename detail::Signature<F>::Second;
            for (const auto& [input, value] : inputs<T>())
                add(name, input, [make = m_make, call, value = value] {
                    const std::shared_ptr<W> object = make();
                    call(*object, value);
                    return object;
                });
            return *this;
        }

        /// A one-argument member of the class or of a base; an int-based enumeration gets Enum inputs.
        template<typename C, typename R, typename A>
        Class& op(const QByteArray& name, R (C::*member)(A))
        {
            using T = std::decay_t<A>;
            if constexpr (std::is_enum_v<T>) {
                static_assert(std::is_same_v<std::underlying_type_t<T>, int>, "use a callable with Enum::masked");
                return op(name, [member](W& w, Enum e) { (w.*member)(e.as<T>()); });
            } else
                return op(name, [member](W& w, T v) { (w.*member)(v); });
        }

        /// A member taking both bounds of a range.
        template<typename C, typename R, typename A>
        Class& op(const QByteArray& name, R (C::*member)(A, A))
        {
            return op(name, [member](W& w, Range<std::decay_t<A>> r) { (w.*member)(r.low, r.high); });
        }

        /// Several operations: name, operation, name, operation, ...
        template<typename F, typename... More>
        Class& ops(const char* name, F call, More... more)
        {
            op(name, call);
            if constexpr (sizeof...(More) > 0)
                ops(more...);
            return *this;
        }

        /// @p make (T) builds the object from every hostile T.
        template<typename F>
        Class& ctor(const QByteArray& name, F make)
        {
            using T = typename detail::Signature<F>::First;
            for (const auto& [input, value] : inputs<T>())
                add(name, input, [make, value = value] { return std::shared_ptr<W>(make(value)); });
            return *this;
        }

    private:
        friend class Sweep;
        Class(Sweep& sweep, const char* name, Make make, Check check)
            : m_sweep(sweep), m_name(name), m_make(std::move(make)), m_check(std::move(check))
        {}

        void add(const QByteArray& op, const char* input, std::function<std::shared_ptr<W>()> build)
        {
            const QByteArray row = m_name + "::" + op + '(' + input + ')';
            m_sweep.m_cases.push_back({row, [build, check = m_check] { survive(build, check); }});
        }

        /// Builds the object and makes the hostile call (both in @p build), then paints and checks it.
        static void survive(const std::function<std::shared_ptr<W>()>& build, const Check& check)
        {
            std::shared_ptr<W> object;
            {
                const detail::QuietWarnings quiet;
                object = build();
                if constexpr (std::is_base_of_v<QWidget, W>) {
                    QCoreApplication::sendPostedEvents();
                    QVERIFY(!detail::paintedCorner(object.get()).isNull());
                }
            }
            check(*object);
        }

        Sweep& m_sweep;
        QByteArray m_name;
        Make m_make;
        Check m_check;
    };

    /// A class whose default constructor makes the object.
    template<typename W>
    Class<W> add(const char* name, typename Class<W>::Check check)
    {
        return add<W>(
            name, [] { return std::make_shared<W>(); }, std::move(check));
    }

    template<typename W>
    Class<W> add(const char* name, typename Class<W>::Make make, typename Class<W>::Check check)
    {
        return Class<W>(*this, name, std::move(make), std::move(check));
    }

    int size() const { return int(m_cases.size()); }

    void addRows() const
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < size(); ++i)
            QTest::newRow(m_cases[size_t(i)].first.constData()) << i;
    }

    void runRow() const
    {
        QFETCH(int, index);
        m_cases[size_t(index)].second();
    }

private:
    std::vector<std::pair<QByteArray, std::function<void()>>> m_cases;
};

} // namespace uxHostile
