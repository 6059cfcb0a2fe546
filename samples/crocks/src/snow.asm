; Snow that falls over everything; when a yard is done it turns to gold and rises.

kFlakes         equ 70

struc Flake
.x:             resw 1                  ; 1/64 pixel
.y:             resw 1
.speed:         resw 1
.sway:          resw 1                  ; where it is in its swaying
endstruc

ScatterSnow:
        mov     si, flakes
        mov     cx, kFlakes
.flake: mov     di, seed_snow
        mov     bx, kWidth * 64
        call    RandomBelow
        mov     [si + Flake.x], ax
        mov     bx, kHeight * 64
        call    RandomBelow
        mov     [si + Flake.y], ax
        mov     bx, 24
        call    RandomBelow
        add     ax, 10
        mov     [si + Flake.speed], ax
        mov     bx, 256
        call    RandomBelow
        mov     [si + Flake.sway], ax
        add     si, Flake_size
        loop    .flake
        ret

; CX = ticks. `snow_rises` is 0 when it falls.
MoveSnow:
        pusha
.tick:  push    cx
        mov     si, flakes
        mov     cx, kFlakes
.flake: mov     ax, [si + Flake.speed]
        cmp     byte [snow_rises], 0
        je      .falls
        neg     ax
        shl     ax, 1
.falls: add     ax, [si + Flake.y]
        jns     .below
        add     ax, kHeight * 64
.below: cmp     ax, kHeight * 64
        jb      .high
        sub     ax, kHeight * 64
.high:  mov     [si + Flake.y], ax
        inc     word [si + Flake.sway]
        mov     ax, [si + Flake.sway]
        call    Sine
        sar     ax, 3
        add     ax, [si + Flake.x]
        jns     .left
        add     ax, kWidth * 64
.left:  cmp     ax, kWidth * 64
        jb      .right
        sub     ax, kWidth * 64
.right: mov     [si + Flake.x], ax
        add     si, Flake_size
        loop    .flake
        pop     cx
        loop    .tick
        popa
        ret

; CX = how many of them. The fast ones are near: larger and brighter.
DrawSnow:
        mov     si, flakes
.flake: mov     ax, [si + Flake.x]
        shr     ax, 6
        mov     dx, [si + Flake.y]
        shr     dx, 6
        mov     bx, [si + Flake.speed]
        shr     bx, 2
        add     bl, kSnow + 7
        cmp     byte [snow_rises], 0
        je      .white
        add     bl, kGlow - kSnow
.white: call    PutPixel
        cmp     word [si + Flake.speed], 26
        jb      .next
        inc     ax
        call    PutPixel
        inc     dx
        call    PutPixel
        dec     ax
        call    PutPixel
.next:  add     si, Flake_size
        loop    .flake
        ret

seed_snow:      dw 1225
snow_rises:     db 0

section .bss
flakes:         resb kFlakes * Flake_size
section .text
