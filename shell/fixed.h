// Fixed-size storage the whole engine shares: blank-padded character fields
// and 1-based arrays. Records are plain structs built from these, so they keep
// their size for the life of the run and nothing is allocated per sample.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

// A character field of exactly N characters, blank padded on the right.
// Assigning a longer text cuts it, a shorter one is padded.
template <std::size_t N>
struct fstr {
    char c[N];

    fstr() { std::memset(c, ' ', N); }
    fstr(std::string_view s) { assign(s); }
    fstr(const char* s) { assign(std::string_view(s)); }
    fstr(const std::string& s) { assign(std::string_view(s)); }
    template <std::size_t M>
    fstr(const fstr<M>& o) { assign(o.sv()); }

    fstr& operator=(std::string_view s) { assign(s); return *this; }
    fstr& operator=(const char* s) { assign(std::string_view(s)); return *this; }
    fstr& operator=(const std::string& s) { assign(std::string_view(s)); return *this; }
    template <std::size_t M>
    fstr& operator=(const fstr<M>& o) { assign(o.sv()); return *this; }

    void assign(std::string_view s) {
        std::size_t n = std::min(N, s.size());
        std::memmove(c, s.data(), n);
        std::memset(c + n, ' ', N - n);
    }
    static constexpr std::size_t size() { return N; }
    std::string_view sv() const { return std::string_view(c, N); }
    operator std::string_view() const { return sv(); }
    // The text without trailing blanks (leading blanks kept).
    std::string_view trimmed() const {
        std::size_t n = N;
        while (n > 0 && c[n - 1] == ' ') --n;
        return std::string_view(c, n);
    }
    // 1-based character access, as text(i:i).
    char& operator()(int i) { assert(i >= 1 && i <= int(N)); return c[i - 1]; }
    char operator()(int i) const { assert(i >= 1 && i <= int(N)); return c[i - 1]; }
    // The substring text(i:j), 1-based and inclusive.
    std::string_view sub(int i, int j) const {
        assert(i >= 1 && j <= int(N));
        return j < i ? std::string_view() : std::string_view(c + i - 1, std::size_t(j - i + 1));
    }
    std::string str() const { return std::string(c, N); }
    bool operator==(std::string_view s) const { return fstr<N>(s).sv() == sv(); }
    template <std::size_t M>
    bool operator==(const fstr<M>& o) const { return *this == o.sv(); }
};

// A writable view of a character field of any length, for routines whose
// character output argument is not of one fixed size.
struct fstr_ref {
    char* p;
    std::size_t n;

    template <std::size_t N>
    fstr_ref(fstr<N>& f) : p(f.c), n(N) {}
    fstr_ref(char* p_, std::size_t n_) : p(p_), n(n_) {}

    void assign(std::string_view s) const {
        std::size_t k = std::min(n, s.size());
        std::memmove(p, s.data(), k);
        std::memset(p + k, ' ', n - k);
    }
    fstr_ref& operator=(std::string_view s) { assign(s); return *this; }
    std::size_t size() const { return n; }
    std::string_view sv() const { return std::string_view(p, n); }
    operator std::string_view() const { return sv(); }
    char& operator()(int i) const { assert(i >= 1 && i <= int(n)); return p[i - 1]; }
};

// A 1-based array of N elements; Lo moves the lower bound (A(0:N-1) is
// farr<T, N, 0>).
template <class T, int N, int Lo = 1>
struct farr {
    T a[N];

    T& operator()(int i) { assert(i >= Lo && i < Lo + N); return a[i - Lo]; }
    const T& operator()(int i) const { assert(i >= Lo && i < Lo + N); return a[i - Lo]; }
    static constexpr int size() { return N; }
    T* data() { return a; }
    const T* data() const { return a; }
    void fill(const T& v) { std::fill(a, a + N, v); }
};

// A 1-based R by C table stored column by column, so that a column is a
// contiguous run of R values (col(j) hands it to routines taking a vector).
template <class T, int R, int C>
struct farr2 {
    T a[R * C];

    T& operator()(int i, int j) {
        assert(i >= 1 && i <= R && j >= 1 && j <= C);
        return a[(j - 1) * R + (i - 1)];
    }
    const T& operator()(int i, int j) const {
        assert(i >= 1 && i <= R && j >= 1 && j <= C);
        return a[(j - 1) * R + (i - 1)];
    }
    T* col(int j) { assert(j >= 1 && j <= C); return a + (j - 1) * R; }
    const T* col(int j) const { assert(j >= 1 && j <= C); return a + (j - 1) * R; }
    static constexpr int rows() { return R; }
    static constexpr int cols() { return C; }
    void fill(const T& v) { std::fill(a, a + R * C, v); }
};
