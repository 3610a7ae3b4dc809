# Makes tables.txt and figures.txt, the twenty tables and what R computes of them:
#   Rscript figures.R ../../../assets/stock/サンプル試験結果.___
# figures.txt begins with a line for each analysis (name, tolerance, its least base, R call); then comes a line for each table, its
# analyses parted by ";", NA where the analysis must refuse, "-" where the condition of the table leaves no figure. "own" figures are
# those of the system's own way where that is not the textbook's.
suppressMessages(library(cluster))
set.seed(20261123)

# ---- the tables: items 1 to 6, then two items of categories
exam <- function(path) {
  bytes <- readBin(path, "raw", file.size(path)); m <- matrix(bytes, 256)
  digits <- matrix(as.integer(m[25:34, ]) - 48L, 10)
  digits[digits < 0 | digits > 9] <- 0
  t(digits)[, 1:8]
}
with_categories <- function(v) {
  n <- nrow(v); k <- sample(1:3, n, TRUE)
  cbind(v, k, ifelse(runif(n) < 0.4, k, sample(1:4, n, TRUE)))
}
random <- function(n, digits, mean, sd) {
  common <- rnorm(n)
  with_categories(round(mean + sd * (0.6 * common + 0.8 * matrix(rnorm(6 * n), n)), digits))
}
hard <- function(kind, n = 48) {
  v <- matrix(round(rnorm(6 * n, 50, 10), 1), n)
  v <- switch(kind,
    singular = { v[, 4] <- v[, 1] + v[, 2]; v },
    nearly = { v[, 4] <- v[, 1] + v[, 2] + round(rnorm(n), 2) / 1e4; v },
    twins = { v[, 2] <- v[, 1] + sample(c(0, 0.1), n, TRUE); v },
    ties = matrix(sample(1:3, 6 * n, TRUE), n),
    lonely = { w <- matrix(5, n, 6); w[cbind(1:6 * 7, 1:6)] <- 6; w },
    million = 1e6 + matrix(sample(0:30, 6 * n, TRUE), n) / 10,
    billion = 1e12 + matrix(sample(0:30, 6 * n, TRUE), n) / 10,
    scales = v %*% diag(c(1e-3, 1, 10, 100, 1e4, 1e6)),
    zeros = v * matrix(sample(c(0, 1, -1), 6 * n, TRUE, c(.2, .7, .1)), n))
  with_categories(v)
}
tables <- c(list(exam(commandArgs(TRUE)[1])),
  Map(random, c(24, 30, 37, 48, 60, 72, 96, 100, 150, 24), c(0, 1, 2, 0, 3, 1, 0, 2, 1, 4),
      c(50, 3, 100, 10, -2, 60, 500, 7, 20, 1), c(10, 1, 15, 4, 1, 12, 90, 2, 6, 0.3)),
  lapply(c("singular", "nearly", "twins", "ties", "lonely", "million", "billion", "scales", "zeros"), hard))
out <- file("tables.txt", "w")
for (v in tables) cat(nrow(v), sprintf("%.15g", t(v)), "\n", file = out)
close(out)
tables <- lapply(readLines("tables.txt"), function(line) {
  x <- as.numeric(strsplit(trimws(line), " +")[[1]])
  matrix(x[-1], x[1], byrow = TRUE)
})

single <- function(x) readBin(writeBin(as.numeric(x), raw(), size = 4), "numeric", length(x), size = 4)
fault_if <- function(bad, value) if (bad) NA * value else value
near <- function(x) x - x[1]  # exact, so that models of large means keep their digits
out <- file("figures.txt", "w")
lines <- as.character(seq_along(tables))
figure <- function(name, x) paste(c(name, ifelse(is.na(x), "NA", ifelse(is.infinite(x), "-", sprintf("%.17g", x)))), collapse = " ")
say <- function(name, call, f, tolerance = 1e-12, floor = 1e-3) {
  cat("#", name, tolerance, floor, call, "\n", file = out)
  for (i in seq_along(tables)) {
    t <- tables[[i]]
    lines[i] <<- paste(lines[i], ";", figure(name, f(t[, 1:6], t[, 7], t[, 8])))
  }
}
groups <- function(n) { i <- seq_len(n) - 1; list(a = factor(i %% 2), b = factor(i %/% 2 %% 3), c = factor(i %/% 6 %% 4)) }
rows <- function(fit) { s <- anova(fit); c(s[["Sum Sq"]], s[["F value"]][seq_len(nrow(s) - 1)]) }

say("shape", "quantile(x, c(.25, .5, .75)), skewness; own and exact counts of 7 classes, edges as singles: floor((x - low) / width) + 1", function(v, k1, k2) {
  d <- near(v[, 3]) - mean(near(v[, 3]))
  x <- v[, 1]; half <- (max(x) - min(x)) / 7 / 2; low <- single(min(x) - half); high <- max(x) + half
  width <- single((high - low) / 7); k <- floor((x - low) / width) + 1
  k[single(x) < low | x > high | k < 1 | k > 255] <- 0
  exact <- floor((near(x) - min(near(x)) + half) / ((max(x) - min(x) + 2 * half) / 7)) + 1
  c(quantile(v[, 3], c(.25, .5, .75)), mean(d^3) / mean(d^2)^1.5, tabulate(k + 1, 8), 0, tabulate(exact, 7))
})
say("pearson", "pairs without 0 as whole numbers: own cor(round(x), round(y)), own cor(round(z), round(w)), cor(x, y)", function(v, k1, k2) {
  unlist(lapply(list(c(1, 2), c(3, 4)), function(p) {
    x <- v[, p[1]]; y <- v[, p[2]]
    if (max(abs(round(c(x, y)))) > 2147483647) return(c(NA, NA, NA, NA))
    use <- round(x) != 0 & round(y) != 0; x <- x[use]; y <- y[use]; n <- length(x); X <- round(x); Y <- round(y)
    if (n < 2 || sd(X) == 0 || sd(Y) == 0) return(c(n, 0, 0, 0))
    z <- function(X) round((X - mean(X)) / sqrt(mean((X - mean(X))^2)))
    c(n, fault_if(max(X^2, Y^2) > 2147483647, cor(X, Y)), cor(z(X), z(Y)), cor(x, y))
  }))
})
say("spearman", "cor(x, y, method = 'spearman') of singles without 0; 1 - 6 (D2 + Tx + Ty) / (n^3 - n); CR", function(v, k1, k2) {
  x <- single(v[, 1]); y <- single(v[, 2]); use <- x != 0 & y != 0; x <- x[use]; y <- y[use]; n <- length(x)
  ties <- function(x) { t <- table(x); sum(t^3 - t) / 12 }
  D2 <- sum((rank(x) - rank(y))^2); M <- (n^3 - n) / 6
  if (sd(x) == 0 || sd(y) == 0) return(c(NA, NA, NA, NA))
  c(n, cor(x, y, method = "spearman"), 1 - 6 * (D2 + ties(x) + ties(y)) / (n^3 - n), (abs(D2 - M) - 1) / sqrt(M^2 / (n - 1)))
})
chiP <- function(chi, df) 1 - exp(-chi / 2) * (chi / 2)^(df / 2) / gamma(df / 2 + 1) * sum(c(1, cumprod(chi / (2 * (1:40) + df))))
say("cross", "chisq.test(table(y, x)), Tschuprow's T, own chiP, pchisq; one cell: chisq.test(cell, correct = FALSE), phi; typed: chi, sqrt(X / (n (larger - 1))), Cramer's V, T", function(v, k1, k2) {
  use <- k1 > 0 & k2 > 0; t <- table(factor(k2[use], 1:max(k2)), factor(k1[use], 1:max(k1)))
  r <- nrow(t); c <- ncol(t)
  if (c > 5 || any(t == 0)) return(rep(NA, 10))
  s <- suppressWarnings(chisq.test(t)); X <- s$statistic; n <- sum(t)
  a <- t[2, 1]; b <- sum(t[, 1]) - a; d <- sum(t[2, ]) - a; m <- matrix(c(a, d, b, n - a - b - d), 2)
  one <- suppressWarnings(chisq.test(m, correct = FALSE))$statistic
  c(X, sqrt(X / (n * sqrt((r - 1) * (c - 1)))), chiP(X, (r - 1) * (c - 1)), pchisq(X, (r - 1) * (c - 1), lower = FALSE), one, det(m) / sqrt(prod(rowSums(m), colSums(m))),
    X, sqrt(X / (n * (c(max(r, c), min(r, c)) - 1))), sqrt(X / (n * sqrt((r - 1) * (c - 1)))))
}, 4e-6)
factors <- function(R, h, cycles) {
  for (i in 1:cycles) { diag(R) <- h; e <- eigen(R); A <- e$vectors[, 1:2] %*% diag(sqrt(e$values[1:2])); h <- rowSums(A^2) }
  A
}
say("eigen", "eigen(cor(v))$values, 1 - 1 / diag(solve(cor(v))), cor(x, y), cov(x, y)", function(v, k1, k2) {
  R <- cor(apply(v, 2, near))
  fault_if(kappa(R, exact = TRUE) > 1e13, c(eigen(R)$values, tryCatch(1 - 1 / diag(solve(R)), error = function(e) rep(NA, 6)), R[2, 1], cov(near(v[, 4]), near(v[, 3]))))
}, 1e-7, 1)
say("factor", "|loadings| of item 1 and of 4 cycles, varimax(A)$loadings: largest of each item, |score| of record 1, AA', mahalanobis(v[1, ], v[2, ], cov(v))", function(v, k1, k2) {
  S <- apply(v, 2, near); R <- cor(S)
  if (kappa(R, exact = TRUE) > 1e13) return(rep(NA, 14))
  h <- 1 - 1 / diag(solve(R)); m <- apply(abs(R - diag(6)), 1, max); e <- eigen(R - diag(1 - h))$values
  if (min(-diff(e[1:3])) < 1e-3) return(rep(Inf, 14))
  A <- factors(R, h, 1); B <- factors(R, m, 4); V <- varimax(A, eps = 1e-14)$loadings; F <- scale(S) %*% solve(R, A)
  c(abs(A[1, ]), abs(B[1, ]), apply(abs(V), 1, max), if (kappa(R) > 1e8) c(Inf, Inf) else abs(F[1, ]), A[1, ] %*% A[2, ],
    mahalanobis(S[1, ], S[2, ], cov(S), tol = 1e-30))
}, 5e-5, 1)
say("distances", "object 1 to 2 and 7 to 3: dist(v)^2, dist(scale(v))^2, dist(v, 'manhattan'), dist(v, 'minkowski', p = 3)", function(v, k1, k2) {
  v <- apply(v, 2, near)
  unlist(lapply(list(dist(v)^2, dist(scale(v))^2, dist(v, "manhattan"), dist(v, "minkowski", p = 3)), function(d) as.matrix(d)[cbind(c(1, 7), c(2, 3))]))
})
say("cluster", "sum and largest of hclust(dist(scale(v))^2, method)$height, ward.D, agnes(method = 'flexible', par = .625); the first 20 objects", function(v, k1, k2) {
  v <- apply(v[1:20, ], 2, function(x) (near(x) - mean(near(x)))); v <- v[, apply(v, 2, sd) > 0, drop = FALSE]; d <- dist(scale(v))^2
  h <- lapply(c("single", "complete", "average", "centroid", "median", "ward.D"), function(m) hclust(d, m)$height)
  h[[7]] <- agnes(d, method = "flexible", par.method = .625)$height
  unlist(lapply(h, function(x) c(sum(x), max(x))))
})
say("anova", "items 1 to 3 and columns that end 3 and 7 early: anova(lm(value ~ item)); items 1 to 4: anova(lm(value ~ column + row)); cells: own totals, or anova(lm(item 1 ~ a * b)) where equal; summary(aov(value ~ A * item + Error(subject)))", function(v, k1, k2) {
  x <- near(v[, 1:4]); n <- nrow(v); g <- groups(n); y <- near(v[, 1]); item <- factor(col(x)); three <- col(x) < 4
  ss <- function(f) sum(tapply(y, f, function(z) sum(z)^2 / length(z)), na.rm = TRUE) - sum(y)^2 / n
  A <- ss(g$a); B <- ss(g$b); AB <- ss(interaction(g$a, g$b)) - A - B; E <- sum(resid(lm(y ~ g$a * g$b))^2)
  cells <- if (n %% 6 == 0) rows(lm(y ~ g$a * g$b)) else c(A, B, AB, E, c(A, B / 2, AB / 2) / (E / (n - 6)))
  t <- summary(aov(x[TRUE] ~ rep(g$a, 4) * item + Error(factor(row(x))), subset = three)); b <- t[[1]][[1]]; w <- t[[2]][[1]]
  c(rows(lm(x[three] ~ item[three])), rows(lm(x[TRUE] ~ item, subset = three & row(x) <= n - c(0, 3, 7, 0)[col(x)])),
    rows(lm(x[TRUE] ~ item + factor(row(x)))), cells,
    b[["Sum Sq"]][1], w[["Sum Sq"]][1:2], b[["Sum Sq"]][2], w[["Sum Sq"]][3], b[["F value"]][1], w[["F value"]][1:2])
})
say("threeway", "anova(lm(y ~ (a + b + c)^2)), anova(lm(y ~ a * b * c)) with c halved, and the ratios of subjects c, on 24 records", function(v, k1, k2) {
  y <- near(v[1:24, 2]); g <- groups(24); h <- factor((as.integer(g$c) - 1) %/% 2)
  one <- anova(lm(y ~ (g$a + g$b + g$c)^2)); MS <- one[["Mean Sq"]]
  c(rows(lm(y ~ (g$a + g$b + g$c)^2)), rows(lm(y ~ g$a * g$b * h)), MS[1] / MS[5], MS[2] / MS[6], MS[4] / MS[7])
})
say("groups", "wilcox.test, CR; t.test(var.equal = TRUE), own SD ratio, var.test: items 1 and 2 of the first 20 records", function(v, k1, k2) {
  x <- near(c(v[1:20, 1], v[1:20, 2])); y <- x[21:40]; x <- x[1:20]; n <- 20
  W <- suppressWarnings(wilcox.test(x, y))$statistic; t <- t.test(x, y, var.equal = TRUE); s <- sort(c(sd(x), sd(y)))
  c(n * n - W, abs(n * n - W - 200) / sqrt(400 * 41 / 12), t$statistic, t$p.value, s[2] / s[1], (s[2] / s[1])^2, pf((s[2] / s[1])^2, 19, 19, lower = FALSE))
})
say("scores", "n, sum, mean, SD, sd(x), min, max, sum(floor(10 (x - M) / SD + 50)), level counts by findInterval; cor(item 2 above its median, item 3)", function(v, k1, k2) {
  x <- v[, 1]; M <- mean(x); S <- sqrt(var(near(x)) * (length(x) - 1) / length(x)); right <- v[, 2] > median(v[, 2])
  c(length(x), sum(x), M, S, sd(near(x)), min(x), max(x), sum(floor(10 * (x - M) / S + 50)), tabulate(findInterval((x - M) / S, c(-1.5, -.5, .5, 1.5)) + 1, 5),
    fault_if(sd(right) == 0, cor(right, near(v[, 3]))))
})

tails <- unlist(lapply(c(0.1, 5, 30, 90, 700), function(q) lapply(c(1, 2, 7, 60, 401), function(df) c(q, df,
  pchisq(q, df, lower = FALSE), 2 * pt(-q, df), pf(q, df, 9, lower = FALSE), pf(q, 4, df, lower = FALSE),
  dbinom(df, 9973, q / 1000), pbinom(df, 9973, q / 1000)))))
all4 <- as.matrix(expand.grid(a = 0:40, b = 0:40, c = 0:40)); all4 <- all4[rowSums(all4) <= 40, ]; d <- 40 - rowSums(all4)
a <- all4[, 1]; b <- all4[, 2]; c4 <- all4[, 3]; X <- 40 * (a * d - b * c4)^2 / ((a + b) * (a + c4) * (b + d) * (c4 + d))
chance <- sum(exp(lgamma(41) - rowSums(lgamma(cbind(all4, d) + 1)) - 40 * log(4))[!is.na(X) & X > 1.62])
x <- c(3.1, 4.1, 5.9, 2.6, 5.3, 5.8, 9.7, 9.3, 2.3, 8.4, 6.2, 6.4); s <- combn(12, 6, function(i) sum(x[i])) - sum(x[1:6])
cat("# tails 1e-11 1e-300 q, df, pchisq, 2 pt(-q), pf(q, df, 9), pf(q, 4, df), dbinom and pbinom(df, 9973, q / 1000)\n",
  "# chance 0.03 0.001 P(X > 1.62) of 40 in four equal cells; P(sum > observed), P(sum < observed) of combn(12, 6)\n", sep = "", file = out)
cat(lines, paste("0 ;", figure("tails", tails), ";", figure("chance", c(chance, chance, mean(s > 1e-9), mean(s < -1e-9)))), sep = "\n", file = out)
close(out)
