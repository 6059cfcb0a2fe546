; The nights. Each has its own fixed row of stars: the first is written out below, the others come
; from a row of random numbers whose seed is the night. Times are ticks, speeds 1/64 pixel a tick.

struc Night
.goal:          resb 1                  ; stars to be counted
.wait:          resb 1                  ; from one star to the next
.speed:         resb 1                  ; of a falling star
.half:          resb 1                  ; half the width of the blanket, pixels
.reach:         resb 1                  ; from one star to the next at most, pixels
.ember:         resb 1                  ; from one ember to the next, in units of 4; 0 none
.comet:         resb 1                  ; the same for comets
.heart:         resb 1                  ; the night brings a heart when so many are counted; 0 none
endstruc

kNights         equ 12                  ; later ones are like the last

nights:         db 10, 75,  62, 28, 255,  0,  0,  0
                db 12, 66,  70, 28, 120,  0, 70,  0
                db 14, 58,  80, 26, 112, 65, 70,  0
                db 16, 52,  90, 26, 104, 55, 65,  8
                db 18, 47, 100, 25,  96, 48, 65,  0
                db 20, 42, 112, 24,  90, 43, 60, 10
                db 22, 38, 124, 23,  84, 38, 60,  0
                db 24, 35, 136, 22,  80, 35, 55, 12
                db 26, 32, 148, 21,  76, 32, 55,  0
                db 28, 30, 160, 20,  72, 30, 50, 14
                db 30, 28, 172, 20,  68, 28, 50,  0
                db 32, 26, 184, 19,  64, 25, 50, 16

; The first night: how long to wait, and where the star falls. Three in the middle, where the
; children stand, some at the left end, some at the right one. The waits between the groups leave
; more than a second beyond the way across.
first_night:    dw   1, 160,   80, 148,   80, 172
                dw 150,  40,   75,  58,   75,  30
                dw 220, 280,   75, 262,   75, 290,   75, 275
                dw 220,  40,   75,  52
                dw 0

; What the nights are about, from a poem of 1941.
night_words:    dw text_memory, text_love, text_loneliness, text_longing, text_poetry, text_mother
kNightWords     equ 6
text_memory:    db "one star for memory", 0
text_love:      db "one star for love", 0
text_loneliness: db "one star for loneliness", 0
text_longing:   db "one star for longing", 0
text_poetry:    db "one star for poetry", 0
text_mother:    db "one star for mother", 0

; SI = the table's row of the night `level`.
NightRow:
        mov     si, [level]
        cmp     si, kNights
        jbe     .known
        mov     si, kNights
.known: dec     si
        shl     si, 3                   ; the size of a row
        add     si, nights
        ret

; SI = the words of the night `level`.
NightWords:
        mov     ax, [level]
        dec     ax
        mov     bl, kNightWords
        div     bl
        movzx   si, ah
        shl     si, 1
        mov     si, [night_words + si]
        ret

; Begins the row of stars of the night `level`.
BeginRow:
        mov     ax, [level]
        imul    ax, 2749
        add     ax, 17
        mov     [seed_row], ax
        mov     [seed_places], ax
        mov     word [last_star_x], kWidth / 2
        mov     word [first_night_next], first_night
        ret

; The next star of the row: AX = ticks to wait before it falls, DX = its x.
NextOfRow:
        cmp     word [level], 1
        jne     .random
        mov     si, [first_night_next]
        cmp     word [si], 0
        jne     .written
        mov     si, first_night
.written:
        mov     ax, [si]
        mov     dx, [si + 2]
        add     si, 4
        mov     [first_night_next], si
        ret
.random:
        call    NightRow
        mov     di, seed_row
        movzx   bx, byte [si + Night.reach]
        call    RandomBelow
        add     ax, 12                  ; never quite the same place again
        mov     dx, ax
        mov     bx, 2
        call    RandomBelow
        test    ax, ax
        jz      .right
        neg     dx
.right: mov     ax, [last_star_x]
        add     ax, dx
        cmp     ax, kFallLeft
        jl      .turn
        cmp     ax, kFallRight
        jle     .fine
.turn:  sub     ax, dx
        sub     ax, dx
.fine:  mov     [last_star_x], ax
        mov     dx, ax
        movzx   ax, byte [si + Night.wait]
        ret
